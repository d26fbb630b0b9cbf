// Boxes that open a list to pick from: combo boxes, whose text can be typed as well, and the list of drives.
#pragma once

#include <QComboBox>

#include "forms/lists.h"
#include "forms/text_controls.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

class ComboView : public ControlView {
 public:
  ComboView(forms::ComboBox& combo, WindowView& window, QWidget& parent)
      : ControlView(combo, window, parent), combo_(combo) {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  Ground GetGround() const override { return Ground::kField; }
  bool Needs(const QKeyEvent& key) const override;

 private:
  forms::ComboBox& combo_;
  QComboBox* widget_ = nullptr;
};

class DriveView : public ControlView {
 public:
  DriveView(forms::DriveListBox& drives, WindowView& window, QWidget& parent)
      : ControlView(drives, window, parent), drives_(drives) {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;

 private:
  forms::DriveListBox& drives_;
  QComboBox* widget_ = nullptr;
};

}  // namespace lectern::desktop
