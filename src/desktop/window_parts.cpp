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

#include "core/texts/window_texts.h"
#include "platform/qt/text.h"

namespace zepril {

QLabel* GroupCaption(Text text) {
  auto* label = new QLabel(ToQt(text));
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

QPushButton* SmallButton() {
  auto* button = new QPushButton;
  button->setFixedHeight(kControlHeight);
  button->setMinimumWidth(0);
  return button;
}

QLabel* DimLabel(Text text) {
  auto* label = new QLabel(ToQt(text));
  label->setProperty("dim", true);
  return label;
}

QLabel* RestsLabel() {
  QLabel* label = DimLabel(kReceptionRests);
  label->setObjectName(QStringLiteral("ReceptionRests"));
  label->setWordWrap(true);
  return label;
}

QToolButton* WindowParts::Tool(Picture picture, bool caption) const {
  auto* tool = new QToolButton;
  tool->setIcon(IconOf(picture, Shades.Text));
  tool->setIconSize(QSize(16, 16));
  tool->setFixedHeight(kControlHeight);
  tool->setToolButtonStyle(caption ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
  tool->setProperty("picture_only", !caption);
  tool->setFocusPolicy(Qt::TabFocus);
  return tool;
}

QLabel* WindowParts::FixedLabel() const {
  auto* label = new QLabel;
  label->setFont(FixedFont);
  return label;
}

QFrame* WindowParts::Panel(QWidget* parent) const {
  auto* panel = new QFrame(parent);
  panel->setProperty("panel", true);
  panel->setAttribute(Qt::WA_NoMousePropagation);  // what lies below has no part in a press
  return panel;
}

QGridLayout* WindowParts::SetUpGrid(QFrame* panel, const Frame& frame, int columns) {
  auto* grid = new QGridLayout(panel);
  grid->setContentsMargins(12, 8, 12, 12);
  grid->setSpacing(8);
  QLabel* caption = GroupCaption(Text{""});
  caption->setWordWrap(true);
  grid->addWidget(caption, 0, 0, 1, columns);
  Binding.OnControlsOut([caption, &frame] {
    const QString text = ToQt(frame.Caption);
    if (caption->text() != text) caption->setText(text);
  });
  return grid;
}

void WindowParts::FieldRow(QGridLayout* grid, int row, TextBox& control) {
  grid->addWidget(new QLabel(ToQt(control.Called)), row, 0);
  grid->addWidget(BoundField(control), row, 1);
}

QLineEdit* WindowParts::BoundField(TextBox& control) {
  auto* edit = new QLineEdit;
  edit->setFont(FixedFont);
  Binding.Bind(edit, control);
  return edit;
}

QPushButton* WindowParts::BoundButton(Button& control) {
  QPushButton* button = SmallButton();
  Binding.Bind(button, control);
  return button;
}

QPushButton* WindowParts::BoundButton(CheckBox& control) {
  QPushButton* button = SmallButton();
  Binding.Bind(button, control);
  KeepRoomForBold(button);
  return button;
}

QPushButton* WindowParts::BoundButton(OptionButton& control) {
  QPushButton* button = SmallButton();
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
