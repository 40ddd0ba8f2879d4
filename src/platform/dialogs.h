// Questions and messages to the operator. Both timers stand still while one is open.
#pragma once

#include <string>

namespace zepril {

enum class DialogButtons { Ok, OkCancel, YesNo };
enum class DialogAnswer { Ok, Cancel, Yes, No };

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // Shows `text` under `title` (plain text, runs of blanks kept) and returns the button pressed.
  // `default_answer` has the focus; closing the box otherwise answers with the harmless button.
  virtual DialogAnswer Ask(const std::string& title, const std::string& text, DialogButtons buttons,
                           DialogAnswer default_answer) = 0;
  void Tell(const std::string& title, const std::string& text) {
    Ask(title, text, DialogButtons::Ok, DialogAnswer::Ok);
  }
};

}  // namespace zepril
