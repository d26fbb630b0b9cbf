#include "ui/desktop/views/bench_view.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>
#include <cassert>

#include "forms/containers.h"
#include "ui/desktop/views/child_views.h"
#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

namespace {

// Wants to show all of what is on it; where the screen has no room for that, it can be scrolled.
class Page : public QScrollArea {
 public:
  QSize sizeHint() const override { return widget()->size(); }
};

}  // namespace

BenchView::BenchView(forms::Window& window, WindowView& view, const std::vector<std::string>& controls)
    : window_(window),
      view_(view),
      frame_(std::make_unique<QWidget>()),
      row_(new QHBoxLayout),
      pages_(new QTabWidget) {
  frame_->setObjectName("bench");
  frame_->setWindowTitle(ToQString(window.Caption()) + ": the keeper's bench");
  auto* const column = new QVBoxLayout(frame_.get());
  column->addLayout(row_);
  column->addWidget(pages_);
  for (const std::string& name : controls) {
    auto* const control = dynamic_cast<forms::PlacedControl*>(window.Find(name));
    assert(control != nullptr);
    QWidget& holder = HolderFor(*control);
    views_.push_back(MakeView(*control, view, holder));
    views_.back()->StandInTheCorner();
    views_.back()->Changed();
    if (dynamic_cast<forms::Container*>(control) != nullptr) {
      AddPage(*control, holder);
    } else {
      row_->addWidget(&holder);
    }
  }
  row_->addStretch();
  view.GetEvents().Run([] {});  // shows what was changed
  Settle();
  frame_->resize(frame_->sizeHint().boundedTo(frame_->screen()->availableSize() * 9 / 10));
  frame_->show();
}

// The views look at their controls, and the widgets end with the frame.
BenchView::~BenchView() {
  views_.clear();
  frame_.reset();
}

// A widget as large as the control.
QWidget& BenchView::HolderFor(const forms::PlacedControl& control) {
  const auto pixels = [](double twips) {
    return static_cast<int>(std::lround(twips / forms::kTwipsPerPixel));
  };
  auto* const holder = new QWidget;
  holder->setFixedSize(pixels(control.Width), pixels(control.Height));
  return *holder;
}

void BenchView::AddPage(forms::PlacedControl& panel, QWidget& holder) {
  const auto* const frame = dynamic_cast<const forms::Frame*>(&panel);
  const QString title = ToQString(frame != nullptr ? frame->Caption() : panel.Name());
  const auto open = [this, &panel] {
    view_.GetEvents().Deliver(window_, [&panel] { panel.Visible = true; });
  };
  auto* const opener = new QPushButton("Open " + title, &holder);
  constexpr int kMargin = 16;
  opener->move(kMargin, kMargin);
  opener->hide();
  QObject::connect(opener, &QPushButton::clicked, opener, open);
  openers_.emplace_back(&panel, opener);
  open();
  auto* const page = new Page;
  page->setFrameShape(QFrame::NoFrame);
  page->setFocusPolicy(Qt::NoFocus);
  page->setWidget(&holder);
  pages_->addTab(page, title);
}

void BenchView::Settle() {
  for (const auto& [panel, opener] : openers_) {
    const bool is_open = panel->Visible;
    if (opener->isHidden() == is_open) continue;
    opener->setVisible(!is_open);
    if (!is_open) opener->setFocus(Qt::OtherFocusReason);
  }
  std::vector<ControlView*> order;
  for (const auto& view : views_) {
    if (!view->IsSeen()) continue;
    view->Stacked();
    if (view->Widget()->focusPolicy() != Qt::NoFocus) order.push_back(view.get());
    if (ChildViews* inner = view->Children()) {
      inner->Stack();
      inner->AppendInTabOrder(order);
    }
  }
  for (std::size_t i = 1; i < order.size(); ++i) {
    QWidget::setTabOrder(order[i - 1]->Widget(), order[i]->Widget());
  }
}

}  // namespace lectern::desktop
