// Which program it is, and when it is started and asked to close.
#include "gate/companion.h"

#include "core/radio_rules.h"

namespace zepril {
namespace {

constexpr const char* kUsualProgram = "\\AGWUIDIGI.EXE";
constexpr double kComingUpSeconds = 4.0;
constexpr double kClosingSeconds = 0.5;

}  // namespace

bool Companion::IsPossible() const {
  return MayHaveCompanion(sections_.Radio);
}

std::string Companion::Path() const {
  return tools_.Disk.NativePath(Program.empty() ? sections_.Identity.ProgramFolder + kUsualProgram
                                                : Program);
}

void Companion::Begin() {
  if (!IsPossible() || sections_.Radio.DigiOn != Digipeater::On) return;
  const std::string path = Path();
  if (tools_.Programs.ProcessOf(path) != 0 || !tools_.Programs.Start(path)) return;
  tools_.LocalClock.WaitPumping(kComingUpSeconds);
}

void Companion::Follow() {
  if (!IsPossible()) return;
  if (sections_.Radio.DigiOn != Digipeater::On) return Close();
  const std::string path = Path();
  if (tools_.Programs.ProcessOf(path) == 0) tools_.Programs.Start(path);
}

void Companion::Watch() {
  if (!IsPossible()) return;
  sections_.Internet.UiDigiWindow = tools_.Programs.ProcessOf(Path());
  sections_.Radio.DigiOn = sections_.Internet.UiDigiWindow != 0 ? Digipeater::On : Digipeater::Off;
}

void Companion::End() {
  if (IsPossible()) Close();
}

void Companion::Close() {
  const std::string path = Path();
  if (tools_.Programs.ProcessOf(path) == 0) return;
  tools_.Programs.AskToClose(path);
  tools_.LocalClock.Wait(kClosingSeconds);
}

}  // namespace zepril
