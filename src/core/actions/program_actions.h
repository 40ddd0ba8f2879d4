// What a room asks of the program as a whole.
#pragma once

namespace zepril {

class ProgramActions {
 public:
  virtual ~ProgramActions() = default;
  // Ends the program without the merge of settings that a close by the operator makes.
  virtual void EndProgram() = 0;
};

}  // namespace zepril
