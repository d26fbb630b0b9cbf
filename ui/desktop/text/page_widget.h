// The widget of a text that is only read. The page of a book has no frame: it goes from edge to edge of its
// place, with a heading of its own and the text in a column in the middle. Other texts are set in a box.
#pragma once

#include <QMenu>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>
#include <functional>

namespace lectern::desktop {

class PageHeading;
class PageFade;

class PageWidget : public QTextEdit {
 public:
  explicit PageWidget(QWidget* parent);

  std::function<bool()> can_quote;              // whether the selection can be copied with its reference
  std::function<void()> quote;                  // copies it; empty if the text has no references
  std::function<void(int steps)> wants_larger;  // called when the wheel is turned with Ctrl

  // Adds to the menu of the other mouse button what can be done with words.
  std::function<void(QMenu& menu, const QString& words)> add_to_menu = [](QMenu&, const QString&) {};

  // Gives it the heading and the column of a book's page. Requires: it has not been shown.
  void BecomeThePage();

  void SetHeading(const QString& title, const QString& detail);

  // The widest that a page's text becomes, and the part of that in which the verses' numbers are.
  void SetColumn(int width, int gutter);

  int TextMargin() const;  // around the text in its document, in pixels

  // The part of the viewport where lines can be read: not those that fade out at its edges.
  QRect ReadablePart() const;

  // What is at the top of the viewport.
  struct Place {
    int position = 0;  // in the document
    int above = 0;     // the hidden part of its line, in pixels
  };
  Place TopPlace() const;
  void ScrollTo(const Place& place);

  // The place of a paragraph in the viewport. Breaks the text into lines up to there.
  QRect PlaceOf(const QTextBlock& block) const;

  // Draws a bar beside the paragraph, until there is another document.
  void Mark(const QTextBlock& block);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void Arrange();
  void ShowFades();
  QString WordsAt(QTextCursor place) const;
  void SelectParagraphAt(const QPoint& point);

  QTextCursor marked_;              // in the marked paragraph
  PageHeading* heading_ = nullptr;  // of a page, as are the fades
  PageFade* above_ = nullptr;
  PageFade* below_ = nullptr;
  int column_ = 0;
  int gutter_ = 0;
  int turned_ = 0;  // part of a notch of the wheel
};

}  // namespace lectern::desktop
