// Pictures of a program folder by the render command, and what it refuses.
#include "tool/render_command.h"

#include <QImage>
#include <QString>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/native/native_files.h"
#include "tests/doubles/temp_folder.h"
#include "tests/map/bmp_maker.h"

namespace zepril {
namespace {

int Render(const std::vector<std::string_view>& args) {
  return RunRender(args);
}

TEST(RenderCommand, PaintsTheMapOfAProgramFolder) {
  const TempFolder folder;
  NativeFiles files(folder.Path());
  files.MakeFolder(R"(C:\U33\M0050)");
  // Every pixel has ink 5.
  files.Write(R"(C:\U33\M0050\58000400.BMP)", FourBitTile(5));
  const std::string picture = folder.Sub("map.png");
  ASSERT_EQ(Render({"--folder", folder.Path(), "-o", picture, "--centre", "5825,425", "--tile",
                    "50", "--size", "320x200", "--level", "0"}),
            0);
  const QImage map(QString::fromStdString(picture));
  ASSERT_EQ(map.size(), QSize(320, 200));
  EXPECT_EQ(map.pixel(20, 20), 0xFF000000u | 5u * 0x10305u);
  // The centre is marked.
  EXPECT_EQ(map.pixel(160, 99), 0xFFFFFF00u);
}

TEST(RenderCommand, DrawsTheStationsOfARecordFile) {
  const TempFolder folder;
  NativeFiles files(folder.Path());
  std::string line = "240115 1234 \xFE 5825.000  435.000 N0CALL    Test";
  line.resize(100, ' ');
  line += "/-   Home       1   ";
  line.resize(120, ' ');
  files.Write(R"(C:\records.txt)", line + "\r\n" + "too short\r\n");
  const std::string picture = folder.Sub("map.png");
  ASSERT_EQ(Render({"--folder", folder.Path(), "-o", picture, "--centre", "5825,425", "--tile",
                    "50", "--size", "640x400", "--records", folder.Sub("records.txt"), "--fonts",
                    ZEPRIL_SOURCE_DIR "/data/fonts", "--level", "2"}),
            0);
  const QImage map(QString::fromStdString(picture));
  // Ten kilometres to the east are 200 pixels; the label's box begins 8 pixels behind.
  EXPECT_EQ(map.pixel(320 + 200 + 5, 199), 0xFF000000u);
  EXPECT_EQ(map.pixel(320 + 200 + 8, 199 + 5), 0xFF9800B8u);
}

TEST(RenderCommand, TakesTheZoneOfTheSettings) {
  const auto painted = [](const std::string& zone) {
    const TempFolder folder;
    NativeFiles files(folder.Path());
    files.Write(R"(C:\ZEPRIL.INI)", "MSYS=" + zone + "\r\n");
    const std::string picture = folder.Sub("map.png");
    EXPECT_EQ(Render({"--folder", folder.Path(), "-o", picture, "--centre", "5825,425", "--tile",
                      "50", "--size", "640x400", "--fonts", ZEPRIL_SOURCE_DIR "/data/fonts",
                      "--level", "0", "--grid", "geo"}),
              0);
    return QImage(QString::fromStdString(picture));
  };
  // The labels of the degrees tell it.
  EXPECT_NE(painted("U33"), painted("U60"));
  EXPECT_EQ(painted("U33"), painted("U33"));
}

TEST(RenderCommand, RefusesWhatItCannotUse) {
  const TempFolder folder;
  EXPECT_EQ(Render({}), 2);
  EXPECT_EQ(Render({"--folder", folder.Path()}), 2);
  EXPECT_EQ(Render({"--folder", folder.Path(), "-o", "x.png", "--size", "0x5"}), 2);
  EXPECT_EQ(Render({"--folder", folder.Path(), "-o", "x.png", "--size", "99999999x5"}), 2);
  EXPECT_EQ(Render({"--folder", folder.Path(), "-o", "x.png", "--tile", "51"}), 2);
  EXPECT_EQ(Render({"--folder", folder.Path(), "-o", "x.png", "--zoom", "0.01"}), 2);
  EXPECT_EQ(Render({"--folder", folder.Path(), "-o", "x.png", "--level", "9"}), 2);
  EXPECT_EQ(Render({"--folder", folder.Path(), "-o", "x.png", "--nonsense"}), 2);
  EXPECT_EQ(Render({"--folder", folder.Path(), "-o", folder.Sub("x.png"), "--records",
                    folder.Sub("missing.txt")}),
            1);
  EXPECT_EQ(Render({"--folder", folder.Path(), "-o", folder.Sub("no/such/folder/x.png")}), 1);
}

}  // namespace
}  // namespace zepril
