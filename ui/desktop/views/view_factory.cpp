#include "ui/desktop/views/view_factory.h"

#include "ui/desktop/text/rich_text_view.h"
#include "ui/desktop/views/button_views.h"
#include "ui/desktop/views/combo_views.h"
#include "ui/desktop/views/figure_views.h"
#include "ui/desktop/views/folder_view.h"
#include "ui/desktop/views/image_view.h"
#include "ui/desktop/views/label_view.h"
#include "ui/desktop/views/list_view.h"
#include "ui/desktop/views/panel_views.h"
#include "ui/desktop/views/progress_view.h"
#include "ui/desktop/views/scroll_bar_view.h"
#include "ui/desktop/views/text_box_view.h"

namespace lectern::desktop {

namespace {

template <class View, class Control>
std::unique_ptr<ControlView> Make(forms::Control& control, WindowView& window, QWidget& parent) {
  return std::make_unique<View>(static_cast<Control&>(control), window, parent);
}

}  // namespace

std::unique_ptr<ControlView> MakeView(forms::Control& control, WindowView& window, QWidget& parent) {
  switch (control.GetKind()) {
    case forms::Kind::kLabel:
      return Make<LabelView, forms::Label>(control, window, parent);
    case forms::Kind::kTextBox:
      return MakeTextBoxView(static_cast<forms::TextBox&>(control), window, parent);
    case forms::Kind::kListBox:
    case forms::Kind::kFileListBox:
      return Make<ListView, forms::ItemList>(control, window, parent);
    case forms::Kind::kComboBox:
      return Make<ComboView, forms::ComboBox>(control, window, parent);
    case forms::Kind::kCommandButton:
    case forms::Kind::kSSCommand:
      return Make<ButtonView, forms::Button>(control, window, parent);
    case forms::Kind::kOptionButton:
    case forms::Kind::kSSOption:
      return Make<OptionView, forms::Option>(control, window, parent);
    case forms::Kind::kHScrollBar:
      return Make<ScrollBarView, forms::HScrollBar>(control, window, parent);
    case forms::Kind::kFrame:
      return Make<FrameView, forms::Frame>(control, window, parent);
    case forms::Kind::kPictureBox:
      return Make<PictureBoxView, forms::PictureBox>(control, window, parent);
    case forms::Kind::kImage:
      return Make<ImageView, forms::Image>(control, window, parent);
    case forms::Kind::kShape:
      return Make<ShapeView, forms::Shape>(control, window, parent);
    case forms::Kind::kLine:
      return Make<LineView, forms::Line>(control, window, parent);
    case forms::Kind::kDirListBox:
      return Make<FolderView, forms::DirListBox>(control, window, parent);
    case forms::Kind::kDriveListBox:
      return Make<DriveView, forms::DriveListBox>(control, window, parent);
    case forms::Kind::kRichTextBox:
      return MakeRichTextView(static_cast<forms::RichTextBox&>(control), window, parent);
    case forms::Kind::kProgressBar:
      return Make<ProgressView, forms::ProgressBar>(control, window, parent);
    case forms::Kind::kMenu:
    case forms::Kind::kTimer:
      return nullptr;
  }
  return nullptr;
}

}  // namespace lectern::desktop
