// The least that a reading program made with this toolkit can be: one window with a pane of text. What the
// start of the program is measured beside.
#include <QApplication>
#include <QFile>
#include <QTextEdit>

int main(int argc, char** argv) {
  constexpr int kWidth = 916;  // as the program's own
  constexpr int kHeight = 668;
  QApplication application(argc, argv);
  QFile file("KJV/Jude.txt");  // about as long as a chapter
  QTextEdit text;
  if (file.open(QIODevice::ReadOnly)) text.setPlainText(QString::fromLatin1(file.readAll()));
  text.setReadOnly(true);
  text.setFixedSize(kWidth, kHeight);
  text.show();
  return QApplication::exec();
}
