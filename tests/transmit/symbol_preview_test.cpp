// What is painted of a table row, with and without an overlay.
#include "transmit/symbol_preview.h"

#include <gtest/gtest.h>

#include "tests/doubles/memory_files.h"
#include "tests/doubles/recorder_surface.h"

namespace zepril {
namespace {

constexpr int kCar = 30;            // "/>"
constexpr int kNumberedDigi = 103;  // "\#"

class SymbolPreviewTest : public ::testing::Test {
 protected:
  SymbolPreviewTest() {
    // A sheet of the right size; its pixels do not matter here.
    for (const char* name : {"C:\\ZEPRIL\\ZEPRSYM0.BMP", "C:\\ZEPRIL\\ZEPRSYM1.BMP"}) {
      disk.Write(name, SheetBmp());
    }
  }
  // 337 x 127 pixels of 24 bits, black.
  static std::string SheetBmp() {
    constexpr int kWidth = 337;
    constexpr int kHeight = 127;
    constexpr int kRow = (kWidth * 3 + 3) / 4 * 4;
    std::string bytes = "BM";
    const auto add = [&bytes](std::uint32_t value, int count) {
      for (int at = 0; at < count; ++at)
        bytes += static_cast<char>(value >> (8 * at) & 0xFF);
    };
    add(54 + kRow * kHeight, 4);
    add(0, 4);
    add(54, 4);
    add(40, 4);
    add(kWidth, 4);
    add(kHeight, 4);
    add(1, 2);
    add(24, 2);
    add(0, 4);
    add(kRow * kHeight, 4);
    for (int field = 0; field < 4; ++field)
      add(0, 4);
    bytes.append(static_cast<std::size_t>(kRow * kHeight), '\0');
    return bytes;
  }
  std::string Drawn() const {
    std::string kinds;
    for (const auto& operation : surface.Operations)
      kinds += operation.Kind + (operation.Words.empty() ? "" : ":" + operation.Words) + " ";
    return kinds;
  }

  MemoryFiles disk;
  std::string folder = "C:\\ZEPRIL";
  SymbolSheets sheets{disk, folder};
  SymbolTable symbols;
  RecorderSurface surface{kSymbolCellPixels, kSymbolCellPixels};
  PictureBox picture;
  SymbolPreview preview{surface, picture, sheets, symbols};
};

TEST_F(SymbolPreviewTest, ShowsTheCellOfTheSheet) {
  preview.Show(kCar, "");
  EXPECT_EQ(Drawn(), "clear image ");
  EXPECT_EQ(picture.Revision, 1U);
}

TEST_F(SymbolPreviewTest, AnOverlayIsShownWhereOneIsTaken) {
  preview.Show(kNumberedDigi, "7");
  EXPECT_EQ(Drawn(), "clear image text:7 ");
}

TEST_F(SymbolPreviewTest, OtherRowsTakeNoOverlay) {
  preview.Show(kCar, "7");
  EXPECT_EQ(Drawn(), "clear image ");
}

TEST_F(SymbolPreviewTest, ARowOutsideTheTableIsShownAsItsLast) {
  const auto cell_of = [this](int row) {
    surface.Operations.clear();
    preview.Show(row, "");
    return surface.Operations.back();
  };
  const auto last = cell_of(194);
  EXPECT_EQ(cell_of(0).Source, last.Source);
  EXPECT_EQ(cell_of(-5).Source, last.Source);
  EXPECT_EQ(cell_of(195).Source, last.Source);
  EXPECT_NE(cell_of(1).Source, last.Source);
}

TEST_F(SymbolPreviewTest, AMissingSheetLeavesTheCellBlank) {
  folder = "C:\\ELSEWHERE";
  preview.Show(kCar, "");
  EXPECT_EQ(Drawn(), "clear ");
}

}  // namespace
}  // namespace zepril
