// The digipeater program beside a packet engine on this computer: started, watched, closed.
#pragma once

#include <string>

#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/radio.h"
#include "platform/clock.h"
#include "platform/companion_programs.h"
#include "platform/files.h"

namespace zepril {

struct CompanionSections {
  const IdentityState& Identity;
  RadioState& Radio;
  InternetState& Internet;
};

struct CompanionTools {
  CompanionPrograms& Programs;
  const Files& Disk;
  Clock& LocalClock;
};

// With another radio interface all of these do nothing.
class Companion {
 public:
  Companion(CompanionSections sections, CompanionTools tools)
      : sections_(sections), tools_(tools) {}

  // The program, as the operator wrote it; empty for "AGWUIDIGI.EXE" in the program folder.
  std::string Program;

  // The start: with the digipeater on it is started and gets four seconds to come up, in which
  // control is handed over.
  void Begin();
  // TX SETUP: started when the digipeater was switched on and it does not run, asked to close when
  // it was switched off, with half a second for that.
  void Follow();
  // Once a tick: the digipeater is on while the program runs, whoever started or closed it.
  void Watch();
  // The end of the run: closed like at switching off.
  void End();

 private:
  bool IsPossible() const;
  std::string Path() const;
  void Close();

  CompanionSections sections_;
  CompanionTools tools_;
};

}  // namespace zepril
