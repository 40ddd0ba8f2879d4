// Notes that the program was asked to end.
#pragma once

#include "core/actions/program_actions.h"

namespace zepril {

class NotedEnd final : public ProgramActions {
 public:
  void EndProgram() override { Ended = true; }

  bool Ended = false;
};

}  // namespace zepril
