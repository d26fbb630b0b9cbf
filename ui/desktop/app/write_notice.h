// Says where a person is about to write something that cannot be saved, because the data folder cannot be
// written or its disk is full: a quiet line in the notes, the bookmarks and the paint window.
#pragma once

#include <QLabel>
#include <QPointer>
#include <array>
#include <string>
#include <utility>

namespace lectern::desktop {

class WriteNotice {
 public:
  explicit WriteNotice(std::string data_folder) : data_folder_(std::move(data_folder)) {}

  // To be called after each event.
  void Look();

 private:
  struct Place {
    const char* neighbour;  // the control beside which the line stands
    bool above;             // or to its right
    int width;              // pixels
    QPointer<QLabel> label{};
  };

  QString Reason() const;
  static void Show(Place& place, const QString& text);

  const std::string data_folder_;
  std::array<Place, 4> places_{{{"Form3.Command13", false, 112},
                                {"Form3.Command2", false, 140},
                                {"Form4.txt5", false, 320},
                                {"Form1.Command5", true, 264}}};
};

}  // namespace lectern::desktop
