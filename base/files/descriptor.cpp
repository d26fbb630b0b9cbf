#include "base/files/descriptor.h"

#include <unistd.h>

namespace lectern::files {

Descriptor::~Descriptor() {
  if (number_ >= 0) ::close(number_);
}

}  // namespace lectern::files
