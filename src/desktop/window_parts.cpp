// Makes captions, boxes, labels, tools and field rows, and binds them.
#include "desktop/window_parts.h"

#include <QFontMetrics>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

#include "core/main_window_captions.h"
#include "platform/qt/text.h"

namespace zepril {

QLabel* GroupCaption(const char* text) {
  auto* label = new QLabel(QString::fromLatin1(text));
  label->setProperty("group", true);
  return label;
}

QBoxLayout* TightBox(QBoxLayout::Direction direction, QWidget* parent) {
  auto* box = new QBoxLayout(direction, parent);
  box->setContentsMargins(0, 0, 0, 0);
  box->setSpacing(kGap);
  return box;
}

QWidget* Scrolling(QWidget* column, int width) {
  auto* area = new QScrollArea;
  area->setWidget(column);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setFocusPolicy(Qt::NoFocus);
  area->setFixedWidth(width);
  area->setMinimumHeight(0);
  return area;
}

QPushButton* NamedButton(const char* name, QWidget* parent) {
  auto* button = new QPushButton(parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setFixedHeight(kControlHeight);
  button->setMinimumWidth(0);
  return button;
}

QLabel* DimLabel(const char* text) {
  auto* label = new QLabel(QString::fromLatin1(text));
  label->setProperty("dim", true);
  return label;
}

QLabel* RestsLabel() {
  QLabel* label = DimLabel(kReceptionRests);
  label->setObjectName(QStringLiteral("ReceptionRests"));
  label->setWordWrap(true);
  return label;
}

QToolButton* WindowParts::Tool(const char* name, Picture picture, bool caption) const {
  auto* tool = new QToolButton;
  tool->setObjectName(QString::fromLatin1(name));
  tool->setIcon(IconOf(picture, Shades.Text));
  tool->setIconSize(QSize(16, 16));
  tool->setFixedHeight(kControlHeight);
  tool->setToolButtonStyle(caption ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
  tool->setProperty("picture_only", !caption);
  tool->setFocusPolicy(Qt::TabFocus);
  return tool;
}

QLabel* WindowParts::FixedLabel(const char* name) const {
  auto* label = new QLabel;
  label->setObjectName(QString::fromLatin1(name));
  label->setFont(FixedFont);
  return label;
}

QFrame* WindowParts::Panel(const char* name, QWidget* parent) const {
  auto* panel = new QFrame(parent);
  panel->setObjectName(QString::fromLatin1(name));
  panel->setProperty("panel", true);
  panel->setAttribute(Qt::WA_NoMousePropagation);  // what lies below has no part in a press
  return panel;
}

QGridLayout* WindowParts::SetUpGrid(QFrame* panel, const Frame& frame, int columns) {
  auto* grid = new QGridLayout(panel);
  grid->setContentsMargins(12, 8, 12, 12);
  grid->setSpacing(8);
  QLabel* caption = GroupCaption("");
  caption->setWordWrap(true);
  grid->addWidget(caption, 0, 0, 1, columns);
  Binding.OnControlsOut([caption, &frame] {
    const QString text = ToQt(frame.Caption);
    if (caption->text() != text) caption->setText(text);
  });
  return grid;
}

void WindowParts::FieldRow(QGridLayout* grid, int row, const char* name, const char* text,
                           TextBox& control) {
  grid->addWidget(new QLabel(QString::fromLatin1(text)), row, 0);
  grid->addWidget(BoundField(name, text, control), row, 1);
}

QLineEdit* WindowParts::BoundField(const char* name, const char* text, TextBox& control) {
  auto* edit = new QLineEdit;
  edit->setObjectName(QString::fromLatin1(name));
  edit->setAccessibleName(QString::fromLatin1(text));
  edit->setFont(FixedFont);
  Binding.Bind(edit, control);
  return edit;
}

QPushButton* WindowParts::BoundButton(const char* name, Button& control) {
  QPushButton* button = NamedButton(name);
  Binding.Bind(button, control);
  return button;
}

QPushButton* WindowParts::BoundButton(const char* name, CheckBox& control) {
  QPushButton* button = NamedButton(name);
  Binding.Bind(button, control);
  KeepRoomForBold(button);
  return button;
}

QPushButton* WindowParts::BoundButton(const char* name, OptionButton& control) {
  QPushButton* button = NamedButton(name);
  Binding.Bind(button, control);
  KeepRoomForBold(button);
  return button;
}

// A caption is bold while its switch is on.
void WindowParts::KeepRoomForBold(QPushButton* button) {
  constexpr int kAround = 20;  // padding and frame
  Binding.OnControlsOut([button, caption = QString()]() mutable {
    if (caption == button->text()) return;
    caption = button->text();
    button->ensurePolished();
    QFont bold = button->font();
    bold.setBold(true);
    button->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(caption) + kAround);
  });
}

}  // namespace zepril
