// The names, roles and states that are handed to assistive programs.
#include "desktop/control_access.h"

#include <QAbstractButton>
#include <QAccessibleWidget>

#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr const char* kRole = "accessible_role";
constexpr const char* kSpokenName = "spoken_name";

class ControlAccess final : public QAccessibleWidget {
 public:
  ControlAccess(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (const auto* button = Button()) {
      state.checkable = button->isCheckable();
      state.checked = button->isChecked();
      state.checkStateMixed = button->property("third_state").toBool();
      state.pressed = button->isDown();
    }
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    const QString text = QAccessibleWidget::text(kind);
    if (!text.isEmpty()) return text;
    if (kind == QAccessible::Name) return SpokenOfEmpty(widget());
    return kind == QAccessible::Description ? widget()->toolTip() : text;
  }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (Button() != nullptr && widget()->isEnabled()) names.prepend(pressAction());
    return names;
  }
  void doAction(const QString& name) override {
    if (name == pressAction() && Button() != nullptr) return Button()->click();
    QAccessibleWidget::doAction(name);
  }

 private:
  QAbstractButton* Button() const { return qobject_cast<QAbstractButton*>(widget()); }
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
  if (object == nullptr || !object->isWidgetType()) return nullptr;
  const QVariant role = object->property(kRole);
  if (!role.isValid()) return nullptr;
  return new ControlAccess(static_cast<QWidget*>(object),
                           static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void NameAfter(QWidget* widget, const Control& control) {
  if (!control.Name.empty() && widget->objectName().isEmpty()) {
    widget->setObjectName(ToQt(control.Name));
  }
  if (!control.Called.empty()) widget->setAccessibleName(ToQt(control.Called));
  if (!control.WhileEmpty.empty()) SpeakOfEmpty(widget, ToQt(control.WhileEmpty));
}

void SetAccessibleRole(QWidget* widget, QAccessible::Role role) {
  static const bool installed = [] {
    QAccessible::installFactory(MakeAccess);
    return true;
  }();
  Q_UNUSED(installed);
  widget->setProperty(kRole, static_cast<int>(role));
  // One that was made earlier, as naming the widget makes it, knows the role of before.
  if (QAccessibleInterface* before = QAccessible::queryAccessibleInterface(widget)) {
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(before));
  }
}

void SpeakOfEmpty(QWidget* widget, const QString& name) {
  widget->setProperty(kSpokenName, name);
}

QString SpokenOfEmpty(const QWidget* widget) {
  return widget->property(kSpokenName).toString();
}

}  // namespace zepril
