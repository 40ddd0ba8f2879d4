// A notice over the map about a file that can't be read or written: which file, why, and what is
// done about it. A click closes it; the same words do not come back by themselves.
#pragma once

#include <string>
#include <utility>

#include "core/controls.h"

namespace zepril {

class FileNotice {
 public:
  explicit FileNotice(Label& label) : label_(label) {}

  void Tell(std::string text) {
    if (text == told_) return;
    told_ = std::move(text);
    label_.Caption = told_;
    label_.Visible = true;
  }
  // All is well again; another's notice stays.
  void Withdraw() {
    if (told_.empty()) return;
    if (label_.Caption == told_) label_.Visible = false;
    told_.clear();
  }

 private:
  Label& label_;
  std::string told_;  // until it is withdrawn
};

}  // namespace zepril
