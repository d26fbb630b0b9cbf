// Where everything lies on the face of a window, in pixels: at its place while the window has its own size,
// and by the anchors when the window is larger.
//
// A panel that has been opened lies over the text, at its place or where the person has moved it. Where there
// is room it stands beside the text instead, as its arrangement says, and the text takes the rest. The
// properties of the controls do not change by any of this.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <map>

#include "forms/window.h"

namespace lectern::desktop {

class FaceLayout {
 public:
  explicit FaceLayout(const forms::Window& window) : window_(window) {}

  // Takes the size of the face, and which panels are open. Returns whether anything may lie elsewhere now.
  bool Update(const QSize& face);

  // The place of a control within what it lies in.
  QRect PlaceOf(const forms::PlacedControl& control) const;

  // Whether the control is a panel that opens over the text or stands beside it, and that a person can move.
  static bool IsMovable(const forms::PlacedControl& control);

  // Whether the control is a panel that stands beside the text now.
  bool StandsBeside(const forms::PlacedControl& control) const;

  // Puts the corner of a movable panel there, or as near as the face allows.
  void Move(const forms::PlacedControl& panel, const QPoint& corner);
  // Lets a panel that was moved go back to its place.
  void PutBack(const forms::PlacedControl& panel) { moved_.erase(&panel); }

  // A panel that is shown in a window of its own has the size of its place there.
  void PutOnBench(const forms::PlacedControl& panel, const QSize& size) { benched_[&panel] = size; }

  // The size of a movable panel while it lies over the text.
  static QSize FloatingSize(const forms::PlacedControl& panel);

 private:
  // What the panels beside the text take from it, and what is left.
  struct Regions {
    QSize face;
    int foot = 0;  // what the foot of the window has gained in height
    QRect text;
    QRect left;    // where panels stand; empty for none
    QRect second;  // where the panel at the right of the text, or below it, stands
    bool operator==(const Regions&) const = default;
  };

  bool IsArranged(const forms::Container& container) const;
  QRect BasePlaceOf(const forms::PlacedControl& control) const;
  QSize BaseSizeOf(const forms::Container& container) const;
  QSize SizeOf(const forms::Container& container) const;
  QRect Anchored(const forms::PlacedControl& control) const;
  void FindRoomBeside(const forms::PlacedControl& text);

  const forms::Window& window_;
  const forms::PlacedControl* text_ = nullptr;  // that panels stand beside; nullptr in windows without any
  Regions regions_;
  std::map<const forms::PlacedControl*, QPoint> moved_;
  std::map<const forms::PlacedControl*, QSize> benched_;
};

}  // namespace lectern::desktop
