#include "reader/versions.h"

#include "forms/window.h"

namespace lectern::reader {

VersionOptions::VersionOptions(forms::Window& form) {
  for (const Version& version : kVersions) {
    options.emplace_back(form, version.option,
                         forms::OptionDesign{.name = version.name, .checked = options.empty()});
  }
  for (const Version& version : kVersions) {
    labels_.emplace_back(form, version.option_label, forms::LabelDesign{.caption = version.label});
  }
}

const Version& VersionOptions::Current() const {
  for (std::size_t i = 0; i + 1 < kVersions.size(); ++i) {
    if (options[i].Value) return kVersions[i];
  }
  return kVersions.back();
}

}  // namespace lectern::reader
