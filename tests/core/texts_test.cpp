// The tables of texts: values in their places, every control named once.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "core/controls/main_window_controls.h"
#include "core/controls/start_panel_controls.h"
#include "core/texts/file_troubles.h"
#include "core/texts/form0_texts.h"
#include "core/texts/form1_texts.h"
#include "core/texts/text.h"

namespace zepril {
namespace {

TEST(Texts, ValuesTakeTheirPlacesInWhateverOrder) {
  EXPECT_EQ(Text{"%2 before %1, %2"}.With({"a", "b"}), "b before a, b");
  EXPECT_EQ(Text{"42 % of %1"}.With({"it"}), "42 % of it");
  EXPECT_EQ(Text{"100 %"}.With({"a"}), "100 %");
}

TEST(Texts, WhatAValueHoldsIsLeftAsItIs) {
  EXPECT_EQ(Text{"%1%2"}.With({"%2", "b"}), "%2b");
  EXPECT_EQ(Text{"%1 %2 %0"}.With({"a"}), "a %2 %0");
}

TEST(Texts, EveryTroubleWithAFileHasWordsOfItsOwn) {
  std::set<std::string> words;
  for (int kind = 0; kind <= static_cast<int>(FileTrouble::Refused); ++kind)
    EXPECT_TRUE(words.insert(WordsOf(static_cast<FileTrouble>(kind))).second) << kind;
  EXPECT_EQ(words.size(), 10u);
  EXPECT_EQ(std::string(WordsOf(FileTrouble::NotDone)), "it could not be done");
  EXPECT_EQ(std::string(WordsOf(FileTrouble::DiskFull)), "the disk is full");
  EXPECT_EQ(std::string(WordsOf(FileTrouble::NoPermission)), "there is no permission");
  EXPECT_EQ(std::string(WordsOf(FileTrouble::FolderMissing)), "its folder is missing");
  EXPECT_EQ(std::string(WordsOf(FileTrouble::NoOrdinaryFile)), "it is no ordinary file");
  EXPECT_EQ(std::string(WordsOf(FileTrouble::NameTaken)), "another file has its name");
  EXPECT_EQ(std::string(WordsOf(FileTrouble::TooLarge)), "it is too large");
}

TEST(Texts, ATextThatIsNotThereIsEmpty) {
  const Text none{};
  EXPECT_FALSE(none.IsThere());
  EXPECT_EQ(std::string(none), "");
  EXPECT_EQ(none.With({"a"}), "");
}

TEST(Texts, RowsOfSeveralControlsNumberThem) {
  MainWindowControls c;
  NameMainWindow(c);
  SetMainWindowLabels(c, 11);
  EXPECT_EQ(c.TxSetup.InfoField[0].Name, "InfoField1");
  EXPECT_EQ(c.TxSetup.InfoField[5].Called, "info line 6");
  EXPECT_EQ(c.TxSetup.PathMemory[3].Caption, "M4");
  EXPECT_EQ(c.Palette.Optionink[0].Name, "Optionink0");
  EXPECT_EQ(c.Scales.Folder[5].Name, "Combo8");
  EXPECT_EQ(c.Scales.Folder[5].Called, "map folder M0002");
  EXPECT_EQ(c.Scales.FrameBox[0].Name, "Combo3Frames");
}

TEST(Texts, WordsThatTheProgramStepsOnAreNotSetBackByALanguage) {
  MainWindowControls c;
  NameMainWindow(c);
  c.Map.Command73.Caption = "POI 2";
  c.TxSetup.fr4ta[2].Caption = "?";
  SetMainWindowLabels(c, 1);
  EXPECT_EQ(c.Map.Command73.Caption, "POI 2");
  EXPECT_EQ(c.TxSetup.fr4ta[2].Caption, "ACTIVE");
}

TEST(Texts, ControlsOfTheStartWindowAreNamedToo) {
  StartPanelControls c;
  NameStartPanel(c);
  EXPECT_EQ(c.Text8.Name, "Text8");
  EXPECT_EQ(c.Text8.Called, "USER CALL");
  EXPECT_EQ(c.Option10.Caption, "-");
  EXPECT_EQ(c.Command1.Caption, "START");
}

}  // namespace
}  // namespace zepril
