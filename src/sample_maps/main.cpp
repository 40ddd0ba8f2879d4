// The sample maps as files: make_sample_maps <source data dir> <target dir>
//
// Draws the sample map library; the target is the folder that the program takes as its map path.

#include <cstdio>

#include "core/text_fields.h"
#include "platform/code_page.h"
#include "platform/native/native_files.h"
#include "sample_maps/sample_maps.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: make_sample_maps <source data dir> <target dir>\n", stderr);
    return 2;
  }
  zepril::NativeFiles files(zepril::DefaultDriveFolder());
  const zepril::SampleMapsResult result = zepril::DrawSampleMaps(
      files, zepril::CodePageFromUtf8(argv[1]), zepril::CodePageFromUtf8(argv[2]),
      [](int done, int total) {
        std::fputs((zepril::WholeNumber(done) + "/" + zepril::WholeNumber(total) + "\n").c_str(),
                   stdout);
        std::fflush(stdout);
        return true;
      });
  if (result.Complete) return 0;
  std::fputs(("cannot go on: " + result.Fault + "\n").c_str(), stderr);
  return 1;
}
