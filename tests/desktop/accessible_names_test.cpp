// The windows as assistive programs see them: every control has a name and says what it is.
#include <QAccessible>
#include <QAbstractButton>
#include <QLineEdit>

#include <set>

#include "core/texts/form1_texts.h"
#include "core/text_fields.h"
#include "desktop/lamp_widget.h"
#include "desktop/look.h"
#include "desktop/scale_row.h"
#include "desktop/start_window.h"
#include "station/start/start_panel.h"
#include "tests/desktop/main_window_support.h"

namespace zepril {
namespace {

// What an operator acts on or reads a state from.
bool IsControl(QAccessible::Role role) {
  static const std::set<QAccessible::Role> roles{
      QAccessible::Button,      QAccessible::PushButton,   QAccessible::CheckBox,
      QAccessible::RadioButton, QAccessible::EditableText, QAccessible::ComboBox,
      QAccessible::List,        QAccessible::PageTab,      QAccessible::Graphic,
      QAccessible::ProgressBar, QAccessible::Canvas,       QAccessible::Table,
      QAccessible::SpinBox,     QAccessible::Slider,       QAccessible::Indicator};
  return roles.contains(role);
}

std::string Told(const QAccessibleInterface& one) {
  const QObject* object = one.object();
  std::string told = "role " + WholeNumber(one.role());
  if (object != nullptr) {
    told += std::string(" ") + object->metaObject()->className() + " " +
            object->objectName().toStdString();
    if (object->parent() != nullptr) told += " in " + object->parent()->objectName().toStdString();
  }
  return told;
}

int CheckNames(QAccessibleInterface* one, int depth = 0) {
  if (one == nullptr || depth > 40) return 0;
  int controls = 0;
  if (IsControl(one->role())) {
    ++controls;
    EXPECT_FALSE(one->text(QAccessible::Name).trimmed().isEmpty()) << Told(*one);
  }
  // Rows of a list are its texts.
  if (one->role() == QAccessible::List) return controls;
  for (int child = 0; child < one->childCount(); ++child)
    controls += CheckNames(one->child(child), depth + 1);
  return controls;
}

class AccessibleNamesTest : public MainWindowTest {
 protected:
  void ShowEverything() {
    MainWindowControls& c = Controls();
    for (Control* panel : std::initializer_list<Control*>{
             &c.Record.Frame1, &c.Picture.Frame8, &c.Status.Text10, &c.Status.Frame12,
             &c.Qth.Frame2, &c.Palette.PalettePanel, &c.MoniAll.HeardPanel, &c.Raw.RawList,
             &c.Status.LinkNotice, &c.Places.PoiPanel, &c.Iono.Frame18, &c.Sun.SunPanel,
             &c.Progress.ProgressPanel, &c.TxSetup.Frame4, &c.ObjectSetup.Frame11,
             &c.Terminal.Frame19}) {
      panel->Visible = true;
    }
    loop.RunStep([] {});
    Pump();
  }
  QAccessibleInterface* Of(const char* name) {
    return QAccessible::queryAccessibleInterface(Find<>(*window, name));
  }
  std::string NameOf(const char* name) { return Of(name)->text(QAccessible::Name).toStdString(); }
};

TEST_F(AccessibleNamesTest, NoControlOfTheMainWindowIsNameless) {
  EXPECT_GT(CheckNames(QAccessible::queryAccessibleInterface(window.get())), 80);
  ShowEverything();
  EXPECT_GT(CheckNames(QAccessible::queryAccessibleInterface(window.get())), 120);
}

TEST_F(AccessibleNamesTest, WithoutToolTipsNoneIsNamelessEither) {
  SetMainWindowLabels(Controls(), 1);
  loop.InputHeld() = nullptr;  // the window's that is there already
  MainWindow other(*program, loop, fonts,
                   WindowSurfaces{map_surface, base_surface, sun_surface, tx_symbol_surface,
                                  object_symbol_surface, weather_surface},
                   files);
  EXPECT_GT(CheckNames(QAccessible::queryAccessibleInterface(&other)), 80);
}

// One and the same word on several controls tells nothing.
TEST_F(AccessibleNamesTest, ControlsOfAKindAreToldApart) {
  ShowEverything();
  std::set<std::string> names;
  int count = 0;
  for (int at = 0; at < 16; ++at, ++count)
    names.insert(NameOf(("Optionink" + std::to_string(at)).c_str()));
  for (int at = 3; at <= 8; ++at, count += 2) {
    names.insert(NameOf(("Combo" + std::to_string(at) + "Frames").c_str()));
    names.insert(NameOf(("Combo" + std::to_string(at)).c_str()));
  }
  for (int at = 1; at <= 6; ++at, count += 3) {
    names.insert(NameOf(("InfoMemory" + std::to_string(at)).c_str()));
    names.insert(NameOf(("InfoField" + std::to_string(at)).c_str()));
    names.insert(NameOf(("fr4ta" + std::to_string(at)).c_str()));
  }
  for (int at = 1; at <= 4; ++at, ++count)
    names.insert(NameOf(("PathMemory" + std::to_string(at)).c_str()));
  EXPECT_EQ(static_cast<int>(names.size()), count);
  EXPECT_EQ(NameOf("Command8"), "Zooming in factor 2");
  EXPECT_EQ(NameOf("Command3"), "STATIONS ...");
}

TEST_F(AccessibleNamesTest, EveryControlHasTheRoleOfWhatItIs) {
  for (const auto& [name, role] :
       {std::pair{"Check4", QAccessible::CheckBox}, std::pair{"Check10", QAccessible::CheckBox},
        std::pair{"Combo3Frames", QAccessible::CheckBox},
        std::pair{"Check6", QAccessible::CheckBox}, std::pair{"Option1", QAccessible::RadioButton},
        std::pair{"Optionink0", QAccessible::RadioButton},
        std::pair{"Command3", QAccessible::Button}, std::pair{"Label1", QAccessible::Button},
        std::pair{"Combo9", QAccessible::ComboBox}, std::pair{"HeardList", QAccessible::List},
        std::pair{"Text15", QAccessible::EditableText},
        std::pair{"Label5", QAccessible::ProgressBar},
        std::pair{"Picture1", QAccessible::Graphic}}) {
    EXPECT_EQ(Of(name)->role(), role) << name;
  }
}

TEST_F(AccessibleNamesTest, ASwitchTellsWhetherItIsOnAndIsPressedByItsAction) {
  QAccessibleInterface* grid = Of("Check4");
  EXPECT_TRUE(grid->state().checkable);
  EXPECT_FALSE(grid->state().checked);
  grid->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(State().Map.GridOn);
  EXPECT_TRUE(grid->state().checked);
}

TEST_F(AccessibleNamesTest, WhatIsOnlyPaintedIsToldInWords) {
  std::set<std::string> told;
  LampWidget lamp;
  for (const LampState state :
       {LampState::Data, LampState::Silent, LampState::Lost, LampState::None, LampState::Paused}) {
    lamp.Show({state, "", ""});
    told.insert(lamp.accessibleName().toStdString());
  }
  EXPECT_EQ(told.size(), 5U);
  EXPECT_EQ(told.count(""), 0U);
  EXPECT_EQ(ScaleLegend(NightLook()).accessibleName(),
            QStringLiteral("filled: tiles at the center, ticked: tile frames"));
}

TEST_F(AccessibleNamesTest, ASwitchOfThreeStatesTellsItsThird) {
  QAccessibleInterface* times = Of("Check13");
  for (int value = 0; value < 3; ++value) {
    loop.RunStep([&] { Controls().MoniAll.Check13.Value = value; });
    EXPECT_EQ(times->state().checked, value > 0);
    EXPECT_EQ(times->state().checkStateMixed, value == 2);
  }
}

TEST_F(AccessibleNamesTest, NoControlOfTheStartWindowIsNameless) {
  StartPanel panel(MachineOf(files, loop, loop, dialogs, desktop, {{}, {&modem}, {}}), "C:\\ZEPRIL",
                   "");
  StartWindow start(panel, loop, fonts);
  start.show();
  start.ShowMapProgress(1, 5);
  EXPECT_GT(CheckNames(QAccessible::queryAccessibleInterface(&start)), 10);
}

}  // namespace
}  // namespace zepril
