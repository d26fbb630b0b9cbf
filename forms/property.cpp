#include "forms/property.h"

#include <algorithm>

#include "base/text/letter_case.h"

namespace lectern::forms {

PropertyBase* PropertyOwner::FindProperty(std::string_view name) const {
  const auto found = std::find_if(
      properties_.begin(), properties_.end(),
      [name](const PropertyBase* property) { return text::EqualFolded(property->Name(), name); });
  return found == properties_.end() ? nullptr : *found;
}

}  // namespace lectern::forms
