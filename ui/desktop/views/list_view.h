// A list box or a file list. The rows are read from the control where they are shown, so that a list that
// grows costs what is seen of it.
#pragma once

#include <memory>

#include "forms/lists.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

class ListWidget;

class ListView : public ControlView {
 public:
  ListView(forms::ItemList& list, WindowView& window, QWidget& parent);
  ~ListView() override;

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  Ground GetGround() const override { return Ground::kField; }

 private:
  class Items;

  forms::ItemList& list_;
  std::unique_ptr<Items> items_;
  ListWidget* widget_ = nullptr;
};

}  // namespace lectern::desktop
