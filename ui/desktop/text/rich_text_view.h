// What the views of rich text have in common. A pane that is only read is a page (reading_page.cpp), with
// space between the lines; one that is edited is a plain sheet (editor.cpp), which loads and edits a text of
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
  // What has changed in the control since it was last shown.
  struct Changes {
    bool text;
    bool styles;  // along with any change of the text or of the colour behind it
    bool marks;   // colours that the program has set in the text, not those that came with it
    bool selection;
  };
  Changes TakeChanges(const QColor& ground);

  // The control's selection as a cursor of the document, which holds its text.
  QTextCursor Selection(QTextDocument& document) const;

  // The person has moved the cursor or changed the selection, which the control learns ahead of the next
  // event.
  void SelectionMoved();

  // Hands the cursor's selection to the control.
  // Requires: the control was shown.
  void CommitSelection(const QTextCursor& cursor);

  // Calls `scroll` with the place where the first coloured run begins, unless that is to be seen already, and
  // with the part of the viewport that no panel covers. `Edit` is the kind of the widget.
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

  Ground GetGround() const override { return Ground::kField; }
  bool Needs(const QKeyEvent& key) const override;

  TextPositions positions_;  // of the text that is shown

 private:
  std::optional<int> FirstMark() const;  // as Qt counts
  static QRect OpenPart(const QAbstractScrollArea& pane);

  struct Shown {
    unsigned text = 0;  // generations of the control
    unsigned style = 0;
    QRgb ground = 0;
    std::pair<int, int> selection;
  };
  std::optional<Shown> shown_;
};

}  // namespace lectern::desktop
