// The list of folders: those on the way to the one that is open, and those inside it, each set in as deep as
// it lies. A double click or Enter opens one.
#pragma once

#include <QStringListModel>
#include <memory>
#include <string>
#include <vector>

#include "forms/lists.h"
#include "ui/desktop/views/control_view.h"

namespace lectern::desktop {

class ListWidget;

class FolderView : public ControlView {
 public:
  FolderView(forms::DirListBox& folders, WindowView& window, QWidget& parent)
      : ControlView(folders, window, parent), folders_(folders) {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  Ground GetGround() const override { return Ground::kField; }
  bool HandleKey(const QKeyEvent& key) override;

 private:
  void Open(int row);

  forms::DirListBox& folders_;
  std::vector<forms::DirListBox::Entry> entries_;  // as shown
  std::string path_;
  QStringListModel rows_;
  ListWidget* widget_ = nullptr;
};

}  // namespace lectern::desktop
