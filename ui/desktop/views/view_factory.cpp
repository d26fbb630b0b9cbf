#include "ui/desktop/views/view_factory.h"

#include "forms/rich_text_box.h"
#include "forms/text_controls.h"

namespace lectern::desktop {

namespace {

ViewMaker* MakerFor(const forms::Control& control) {
  switch (control.GetKind()) {  // clang-format off
    case forms::Kind::kLabel:        return kMakeLabelView;
    case forms::Kind::kListBox:
    case forms::Kind::kFileListBox:  return kMakeListView;
    case forms::Kind::kComboBox:     return kMakeComboView;
    case forms::Kind::kCommandButton:
    case forms::Kind::kSSCommand:    return kMakeButtonView;
    case forms::Kind::kOptionButton:
    case forms::Kind::kSSOption:     return kMakeOptionView;
    case forms::Kind::kHScrollBar:   return kMakeScrollBarView;
    case forms::Kind::kFrame:        return kMakeFrameView;
    case forms::Kind::kPictureBox:   return kMakePictureBoxView;
    case forms::Kind::kImage:        return kMakeImageView;
    case forms::Kind::kShape:        return kMakeShapeView;
    case forms::Kind::kLine:         return kMakeLineView;
    case forms::Kind::kDirListBox:   return kMakeFolderView;
    case forms::Kind::kDriveListBox: return kMakeDriveView;
    case forms::Kind::kProgressBar:  return kMakeProgressView;
    case forms::Kind::kTextBox:
      return static_cast<const forms::TextBox&>(control).MultiLine() ? kMakeSeveralLinesView : kMakeOneLineView;
    case forms::Kind::kRichTextBox:
      return static_cast<const forms::RichTextBox&>(control).ReadOnly() ? kMakeReadingPage : kMakeEditor;
    case forms::Kind::kMenu:
    case forms::Kind::kTimer:        return nullptr;
  }  // clang-format on
  return nullptr;
}

}  // namespace

std::unique_ptr<ControlView> MakeView(forms::Control& control, WindowView& window, QWidget& parent) {
  ViewMaker* const make = MakerFor(control);
  return make == nullptr ? nullptr : make(control, window, parent);
}

}  // namespace lectern::desktop
