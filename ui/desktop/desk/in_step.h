// Keeps two pages at the same verse: where a person scrolls one, the other follows. It does so by the verses'
// numbers, whatever their lengths, and also where one of the pages lacks a verse.
#pragma once

#include "ui/desktop/text/verse_page.h"

namespace lectern::desktop {

class InStep {
 public:
  // Both outlive this, or stop reporting before it goes.
  InStep(VersePage& first, VersePage& second);
  ~InStep();

  // After an event: whether the second page is shown. One that appears is taken to the first one's verse. The
  // verse that is marked in the first page is marked in the second.
  void TurnOn(bool on);

  // The second page has another text: takes it to the first one's verse.
  void Align();

 private:
  void Follow(const VersePage& leader, VersePage& follower);

  VersePage& first_;
  VersePage& second_;
  bool on_ = false;
  bool following_ = false;
};

}  // namespace lectern::desktop
