// The file of port devices holds anything: a device that was chosen is read again, the devices of
// all other numbers stay, and so does every byte but those of its line.
//
// Input: the number in a byte, the device up to the first zero byte, the file's text.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "config/ports_file.h"
#include "core/text_fields.h"
#include "tests/doubles/memory_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const int number = data[0];
  const std::string_view rest(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::string_view device = rest.substr(0, rest.find('\0'));
  const std::string before(rest.substr(std::min(device.size() + 1, rest.size())));
  const std::string folder = "C:\\Z";
  zepril::MemoryFiles files;
  std::string& text = files.Contents["C:\\Z\\PORTS.TXT"];
  text = before;
  std::string held[8];
  for (int other = 0; other < 8; ++other)
    held[other] = zepril::DeviceOfPort(files, folder, other);
  if (!zepril::ChooseDeviceOfPort(files, folder, number, device)) {
    if (text != before) std::abort();
    return 0;
  }
  if (number == 0 || zepril::DeviceOfPort(files, folder, number) != zepril::Trim(device)) {
    std::abort();
  }
  // A new line in front of a file that is too long puts the last line that is read out of reach.
  if (std::count(before.begin(), before.end(), '\n') +
          std::count(before.begin(), before.end(), '\r') >=
      zepril::kMostPortLines) {
    return 0;
  }
  for (int other = 0; other < 8; ++other) {
    if (other != number && zepril::DeviceOfPort(files, folder, other) != held[other]) std::abort();
  }
  if (text.size() > before.size() + zepril::kLongestPortLine + 4) std::abort();
  return 0;
}
