// Message boxes. The timers stand still while one is open.
#pragma once

#include "platform/dialogs.h"
#include "platform/qt/qt_loop.h"

class QMessageBox;
class QWidget;

namespace zepril {

class QtDialogs final : public Dialogs {
 public:
  explicit QtDialogs(QtLoop& loop) : loop_(loop) {}
  // The window that boxes belong to.
  void SetOwner(QWidget* owner) { owner_ = owner; }

  DialogAnswer Ask(const std::string& title, const std::string& text, DialogButtons buttons,
                   DialogAnswer default_answer) override;

  // The session ends: the open box, and every later one, is answered with the harmless button.
  void AnswerNoMore();

 private:
  QtLoop& loop_;
  QWidget* owner_ = nullptr;
  QMessageBox* open_ = nullptr;
  bool answers_no_more_ = false;
};

}  // namespace zepril
