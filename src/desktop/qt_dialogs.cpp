// Shows a box, and answers without harm when it is closed or the program must end.
#include "desktop/qt_dialogs.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>

#include "platform/qt/text.h"

namespace zepril {
namespace {

QMessageBox::StandardButtons ButtonsOf(DialogButtons buttons) {
  switch (buttons) {
    case DialogButtons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case DialogButtons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case DialogButtons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

QMessageBox::StandardButton ButtonOf(DialogAnswer answer) {
  switch (answer) {
    case DialogAnswer::Yes:
      return QMessageBox::Yes;
    case DialogAnswer::No:
      return QMessageBox::No;
    case DialogAnswer::Cancel:
      return QMessageBox::Cancel;
    case DialogAnswer::Ok:
      break;
  }
  return QMessageBox::Ok;
}

// What closing the box without a button means.
DialogAnswer HarmlessOf(DialogButtons buttons) {
  if (buttons == DialogButtons::YesNo) return DialogAnswer::No;
  return buttons == DialogButtons::OkCancel ? DialogAnswer::Cancel : DialogAnswer::Ok;
}

}  // namespace

DialogAnswer QtDialogs::Ask(const std::string& title, const std::string& text,
                            DialogButtons buttons, DialogAnswer default_answer) {
  if (answers_no_more_) return HarmlessOf(buttons);
  QMessageBox box(owner_);
  box.setWindowTitle(ToQt(title));
  box.setTextFormat(Qt::PlainText);
  // No-break blanks: a box of plain text would fold runs of blanks.
  box.setText(ToQt(text).replace(QStringLiteral("  "), QStringLiteral("\u00A0\u00A0")));
  box.setIcon(buttons == DialogButtons::OkCancel ? QMessageBox::Question : QMessageBox::Warning);
  box.setStandardButtons(ButtonsOf(buttons));
  box.setDefaultButton(ButtonOf(default_answer));
  box.setEscapeButton(ButtonOf(HarmlessOf(buttons)));
  int pressed = QMessageBox::NoButton;
  QMessageBox* const below = std::exchange(open_, &box);
  loop_.Hold([&] { pressed = box.exec(); });
  open_ = below;
  for (DialogAnswer answer :
       {DialogAnswer::Ok, DialogAnswer::Cancel, DialogAnswer::Yes, DialogAnswer::No}) {
    if (pressed == ButtonOf(answer)) return answer;
  }
  return HarmlessOf(buttons);
}

void QtDialogs::AnswerNoMore() {
  answers_no_more_ = true;
  if (open_ != nullptr) open_->reject();
}

}  // namespace zepril
