// How the properties of a control come out on its widget; what has not changed is left alone.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string>

#include "core/controls.h"
#include "desktop/look.h"

class QAbstractButton;
class QWidget;

namespace zepril {

// What was last brought out of a control; a property goes out again only when it differs.
struct Shown {
  bool Known = false;
  bool Visible = true;
  bool Enabled = true;
  std::string ToolTip;
  std::optional<std::uint32_t> BackColour;
  std::optional<std::uint32_t> ForeColour;
};

// The same of a caption, and the spoken name that was made of it.
struct ShownCaption {
  bool Known = false;
  std::string Caption;
  std::string ToolTip;
  QString Name;
};

void ShowCommon(QWidget* widget, Control& control, Shown& shown, const Look& look);
// "&" in a caption reads as itself on our widgets; the logic's doubled ones become single again.
QString CaptionText(const std::string& caption);
// What a screen reader says: a name that the window has given stays; else it is the caption where
// that is a word, else what the tool tip begins with.
void ShowName(QWidget* widget, const std::string& caption, const std::string& tip, QString& shown);
void ShowCaption(QAbstractButton* widget, const std::string& caption, const std::string& tip,
                 ShownCaption& shown);
// Held for `repeat_ms` and each time again; 0: once, when it is let go.
void ShowRepeat(QAbstractButton* widget, int repeat_ms);

}  // namespace zepril
