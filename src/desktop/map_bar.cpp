#include "desktop/map_bar.h"

#include <QFrame>
#include <QLabel>
#include <QToolButton>

#include "desktop/window_parts.h"

namespace zepril {

QWidget* MakeMapBar(WindowParts& parts, MapControls& map) {
  auto* bar = new QFrame;
  bar->setObjectName(QStringLiteral("MapBar"));
  auto* row = TightBox(QBoxLayout::LeftToRight, bar);
  row->setContentsMargins(8, 4, 8, 4);
  const auto caption = [row](const char* text) {
    auto* label = new QLabel(QString::fromLatin1(text));
    label->setProperty("dim", true);
    row->addWidget(label);
  };
  const auto add = [&](const char* name, Picture picture, Button& control, bool text = false) {
    auto* tool = parts.Tool(name, picture, text);
    row->addWidget(tool);
    parts.Binding.Bind(tool, control);
    return tool;
  };
  caption("scale");
  add("Command1", Picture::Coarser, map.Command1);
  add("Command2", Picture::Finer, map.Command2);
  row->addSpacing(12);
  caption("zoom");
  add("Command7", Picture::ZoomOut, map.Command7);
  add("Command9", Picture::ZoomOne, map.Command9);
  add("Command8", Picture::ZoomIn, map.Command8);
  row->addSpacing(12);
  add("Command12", Picture::Centre, map.Command12, true)->setMinimumWidth(72);
  auto* own = parts.Tool("Option1", Picture::Own, true);
  auto* station = parts.Tool("Option2", Picture::Station, true);
  row->addWidget(own);
  row->addWidget(station);
  parts.Binding.Bind(own, map.Option1);
  parts.Binding.Bind(station, map.Option2);
  row->addStretch(1);
  add("Command72", Picture::Brightness, map.Command72, true);
  return bar;
}

}  // namespace zepril
