#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

std::unique_ptr<ControlView> MakeView(forms::Control& control, WindowView& window, QWidget& parent) {
  const auto maker = [&]() -> ViewMaker* {
    switch (control.GetKind()) {
      case forms::Kind::kLabel:
        return MakeLabelView;
      case forms::Kind::kTextBox:
        return MakeTextBoxView;
      case forms::Kind::kListBox:
      case forms::Kind::kFileListBox:
        return MakeListView;
      case forms::Kind::kComboBox:
        return MakeComboView;
      case forms::Kind::kCommandButton:
      case forms::Kind::kSSCommand:
        return MakeButtonView;
      case forms::Kind::kOptionButton:
      case forms::Kind::kSSOption:
        return MakeOptionView;
      case forms::Kind::kHScrollBar:
        return MakeScrollBarView;
      case forms::Kind::kFrame:
        return MakeFrameView;
      case forms::Kind::kPictureBox:
        return MakePictureBoxView;
      case forms::Kind::kImage:
        return MakeImageView;
      case forms::Kind::kShape:
        return MakeShapeView;
      case forms::Kind::kLine:
        return MakeLineView;
      case forms::Kind::kDirListBox:
        return MakeFolderView;
      case forms::Kind::kDriveListBox:
        return MakeDriveView;
      case forms::Kind::kRichTextBox:
        return MakeRichTextView;
      case forms::Kind::kProgressBar:
        return MakeProgressView;
      case forms::Kind::kMenu:
      case forms::Kind::kTimer:
        return nullptr;
    }
    return nullptr;
  }();
  return maker == nullptr ? nullptr : maker(control, window, parent);
}

}  // namespace lectern::desktop
