// The texts of the start window's controls, from one table with a row a control.
#pragma once

namespace zepril {

struct StartPanelControls;

// Gives every control its name and its texts.
void NameStartPanel(StartPanelControls& controls);
// The texts that depend on the language, with the tool tips where its tens digit is 1.
void SayStartPanel(StartPanelControls& controls, int language);

}  // namespace zepril
