// The base of the views of rich text. Text that is only read is shown as a page (reading_page.cpp), with
// space between the lines. Text that can be edited is shown in a plain editor (editor.cpp), which handles
// many megabytes without a pause.
#pragma once

#include <QAbstractScrollArea>
#include <QTextCursor>
#include <QTextDocument>
#include <memory>
#include <optional>
#include <utility>

#include "forms/rich_text_box.h"
#include "ui/desktop/text/text_positions.h"
#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

class RichTextView : public ViewOf<forms::RichTextBox> {
 public:
  using ViewOf::ViewOf;

 protected:
  // What has changed in the control since the previous call.
  struct Changes {
    bool text;
    bool styles;  // also true if the text or the background has changed
    bool marks;   // colours that the program has set after loading the text
    bool selection;
  };
  Changes TakeChanges(const QColor& ground);

  // The control's selection in the document that holds its text.
  QTextCursor Selection(QTextDocument& document) const;

  // The user has moved the cursor or changed the selection. The control is updated before the next event.
  void SelectionMoved();

  // Copies the cursor's selection to the control.
  // Requires: the control has been shown.
  void CommitSelection(const QTextCursor& cursor);

  // If the beginning of the first coloured run is not visible, calls `scroll` with its position, its place in
  // the viewport, and the part of the viewport that no panel covers.
  template <class Edit, class Scroll>
  void BringMarkIntoSight(const Edit& edit, Scroll scroll) const {
    const std::optional<int> mark = FirstMark();
    if (!mark) return;
    QTextCursor at(edit.document());
    at.setPosition(*mark);
    const QRect place = edit.cursorRect(at);
    const QRect open = OpenPart(edit);
    if (place.top() < open.top() || place.bottom() > open.bottom()) scroll(at, place, open);
  }

  // The part of the viewport above the panels or the part below them, whichever is larger.
  static QRect OpenPart(const QAbstractScrollArea& pane);

  Ground GetGround() const override { return Ground::kField; }
  bool Needs(const QKeyEvent& key) const override;

  TextPositions positions_;  // in the text that is shown

 private:
  std::optional<int> FirstMark() const;  // a position of Qt

  struct Shown {
    unsigned text = 0;  // generations of the control
    unsigned style = 0;
    QRgb ground = 0;
    std::pair<int, int> selection;
  };
  std::optional<Shown> shown_;
};

}  // namespace lectern::desktop
