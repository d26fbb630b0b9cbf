#include "ui/desktop/desk/key_sheet.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace lectern::desktop {

namespace {

struct Row {
  const char* keys;
  const char* what;  // what they do
};

// A row without keys is the heading of those below it.
constexpr Row kRows[] = {
    {"", "Reading"},
    {"Letters, digits, Ctrl+L", "go to a place: jn 3 16, 1 cor 13, or 7 in the open book"},
    {"Ctrl+G", "choose a chapter of the open book"},
    {"Ctrl+Page Up, Ctrl+Page Down", "open the previous or the next chapter"},
    {"Arrows, Page Up, Page Down, Space, Home, End", "move through the text; with Shift, select"},
    {"Ctrl+B", "show both versions, or one"},
    {"Ctrl+Plus, Ctrl+Minus, Ctrl+0", "show the text larger, smaller, or in the size that is set"},
    {"Ctrl+D", "read on a dark page, or on a light one"},
    {"Ctrl+C, Ctrl+Shift+C", "copy the selection; with its reference"},
    {"Shift+F10, menu key", "what can be done with the selected words"},
    {"", "Windows and panels"},
    {"Tab, Shift+Tab", "go to the next control, and back"},
    {"Alt with an underlined letter", "press that button, or open that menu"},
    {"F10 or Alt alone, then a letter", "open a menu, also where a button has the same letter"},
    {"F6, Shift+F6", "go to the next or the previous panel, and to the text"},
    {"Enter, Escape", "press the panel's main button; close the panel"},
    {"Arrows, first letters", "move through a list; each step opens the item"},
    {"F11", "fill the screen, or not"},
    {"F1", "open the help"},
    {"?, Ctrl+/", "show this sheet"},
    {"", "Notes and paint"},
    {"Ctrl+O, Ctrl+S", "open and save in the notes"},
    {"Arrows, Space, menu key", "among the colours: go to one, pick it, replace it"},
    {"Arrows, Shift with arrows, Space", "on the picture: move the pen; put it down or lift it"},
};

QTableWidgetItem* Cell(const char* text, bool is_heading) {
  auto* const cell = new QTableWidgetItem(QString::fromUtf8(text));
  cell->setFlags(is_heading ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  if (is_heading) {
    QFont font;
    font.setWeight(QFont::DemiBold);
    cell->setFont(font);
  }
  return cell;
}

}  // namespace

KeySheet::KeySheet(QWidget* parent) : QDialog(parent) {
  constexpr QSize kSize(720, 700);
  constexpr int kRowHeight = 24;
  setObjectName("keys");
  setWindowTitle("Keys");
  setAttribute(Qt::WA_DeleteOnClose);
  auto* const table = new QTableWidget(static_cast<int>(std::size(kRows)), 2, this);
  table->setAccessibleName("Keys");
  table->horizontalHeader()->hide();
  table->verticalHeader()->hide();
  table->verticalHeader()->setDefaultSectionSize(kRowHeight);
  table->setShowGrid(false);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setTabKeyNavigation(false);
  for (int row = 0; row < table->rowCount(); ++row) {
    const bool is_heading = *kRows[row].keys == '\0';
    table->setItem(row, 0, Cell(is_heading ? kRows[row].what : kRows[row].keys, is_heading));
    if (is_heading) {
      table->setSpan(row, 0, 1, 2);
    } else {
      table->setItem(row, 1, Cell(kRows[row].what, false));
    }
  }
  table->resizeColumnToContents(0);
  table->horizontalHeader()->setStretchLastSection(true);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(table);
  column->addWidget(buttons);
  resize(kSize);
  buttons->button(QDialogButtonBox::Close)->setFocus();
}

}  // namespace lectern::desktop
