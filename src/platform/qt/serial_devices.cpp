// Finds devices by number, name and link, ranks them, and words their trouble.
#include "platform/qt/serial_devices.h"

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QSerialPortInfo>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

#include "core/port_number.h"
#include "core/text_fields.h"
#include "core/texts/notices.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

std::string PathOfName(const std::string& name) {
  return name.find('/') == std::string::npos ? "/dev/" + name : name;
}

// The device named for a number; empty when none is.
std::string NameOfNumber(int number, const PortBook& book) {
  const std::string variable = "ZEPRIL_COM" + WholeNumber(number);
  const char* other = std::getenv(variable.c_str());
  if (other != nullptr && *other != '\0') return other;
  return book ? book(number) : std::string();
}

struct MeantDevice {
  std::string Path;      // as it was named, links not followed
  bool Counted = false;  // not named: the n-th of those that are there
};

MeantDevice DeviceOfNumber(int number, const PortBook& book, const SerialDeviceList& present) {
  if (number < 1 || number > kHighestPortNumber) return {};
  const std::string name = NameOfNumber(number, book);
  if (!name.empty()) return {PathOfName(name), false};
  const std::vector<SerialDevice> devices = present();
  const auto place = static_cast<std::size_t>(number - 1);
  // The number's own name is no path: it is found absent.
  return {place < devices.size() ? devices[place].Path : "COM" + WholeNumber(number), true};
}

MeantDevice DeviceOfText(std::string_view device, const PortBook& book,
                         const SerialDeviceList& present) {
  const std::string text(Trim(device));
  if (text.empty()) return {};
  if (const auto number = PortNumberOfText(text)) return DeviceOfNumber(*number, book, present);
  return {PathOfName(text), false};
}

// Programs that share a port agree on it by the device's own name.
std::string LinksFollowed(const std::string& path) {
  const QString real = QFileInfo(ToQt(path)).canonicalFilePath();
  return real.isEmpty() ? path : FromQt(real);
}

std::string SerialOf(const std::string& path, const SerialDeviceList& present) {
  for (const SerialDevice& device : present())
    if (device.Path == path) return device.Serial;
  return {};
}

constexpr const char* kPlayedLinks = "ZEPRIL_SERIAL_BY_ID";

bool LinksArePlayed() {
  const char* folder = std::getenv(kPlayedLinks);
  return folder != nullptr && *folder != '\0';
}

std::vector<QFileInfo> LinksIn(const std::string& folder) {
  // Devices count as entries of the system's own, not as files.
  const QDir links(ToQt(folder), QString(), QDir::Name, QDir::Files | QDir::System);
  const QFileInfoList entries = links.entryInfoList();
  return {entries.begin(), entries.end()};
}

std::vector<SerialDevice> PlayedSerialDevices() {
  std::vector<SerialDevice> devices;
  for (const QFileInfo& link : LinksIn(SerialLinkFolder())) {
    const QString path = link.canonicalFilePath();
    if (path.isEmpty()) continue;
    devices.push_back({FromQt(path), FromQt(link.fileName()), FromQt(link.filePath())});
  }
  return devices;
}

bool IsPath(const std::string& path) {
  return path.find('/') != std::string::npos;
}

// Place in the list: adapters come before what a computer has built in and mostly unused.
std::size_t Rank(const std::string& path) {
  constexpr std::array<std::string_view, 4> kOrder{"/dev/ttyUSB", "/dev/ttyACM", "/dev/rfcomm",
                                                   "/dev/ttyS"};
  std::size_t rank = 0;
  while (rank < kOrder.size() && !path.starts_with(kOrder[rank]))
    ++rank;
  return rank;
}

// The group that owns the device; "dialout" when the system does not tell.
std::string GroupOf(const std::string& path) {
  struct stat found {};
  if (::stat(path.c_str(), &found) == 0) {
    std::array<char, 4096> room{};
    group entry{};
    group* result = nullptr;
    ::getgrgid_r(found.st_gid, &entry, room.data(), room.size(), &result);
    // Joining the administrators' own group is nothing to be recommended.
    if (result != nullptr && found.st_gid != 0) return result->gr_name;
  }
  return "dialout";
}

}  // namespace

bool ComesBefore(const SerialDevice& a, const SerialDevice& b) {
  if (Rank(a.Path) != Rank(b.Path)) return Rank(a.Path) < Rank(b.Path);
  if (a.Path.size() != b.Path.size()) return a.Path.size() < b.Path.size();  // 9 before 10
  return a.Path < b.Path;
}

std::vector<SerialDevice> PresentSerialDevices() {
  if (LinksArePlayed()) return PlayedSerialDevices();
  std::vector<SerialDevice> devices;
  for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts()) {
    const QString& maker = port.manufacturer();
    QString name = port.description();
    if (!maker.isEmpty()) name = name.isEmpty() ? maker : maker + QLatin1Char(' ') + name;
    const std::string path = FromQt(port.systemLocation());
    devices.push_back({path, FromQt(name), StableSerialPath(path), FromQt(port.serialNumber())});
  }
  std::sort(devices.begin(), devices.end(), ComesBefore);
  return devices;
}

std::string SerialLinkFolder() {
  return LinksArePlayed() ? std::getenv(kPlayedLinks) : "/dev/serial/by-id";
}

std::string StableSerialPath(const std::string& path, const std::string& folder) {
  const QString device = QFileInfo(ToQt(path)).canonicalFilePath();
  if (device.isEmpty()) return {};
  for (const QFileInfo& link : LinksIn(folder)) {
    if (link.canonicalFilePath() == device) return FromQt(link.filePath());
  }
  return {};
}

std::string SerialDevicePath(std::string_view device, const PortBook& book,
                             const SerialDeviceList& present) {
  const std::string path = DeviceOfText(device, book, present).Path;
  return IsPath(path) ? LinksFollowed(path) : path;
}

std::string ChosenDevice::LastingName() const {
  if (!Link.empty()) return Link;
  return Serial.empty() ? Path : Path + ' ' + Serial;
}

ChosenDevice ChooseSerialDevice(std::string_view device, const PortBook& book,
                                const SerialDeviceList& present, const std::string& folder) {
  const MeantDevice meant = DeviceOfText(device, book, present);
  ChosenDevice chosen{meant.Path, {}, {}, false, meant.Counted};
  const QFileInfo found(ToQt(meant.Path));
  chosen.Present = IsPath(meant.Path) && found.exists();
  // A link that the operator named is his name for it.
  if (IsPath(meant.Path) && found.isSymLink()) chosen.Link = meant.Path;
  if (!chosen.Present) return chosen;
  chosen.Path = LinksFollowed(meant.Path);
  if (chosen.Link.empty()) chosen.Link = StableSerialPath(chosen.Path, folder);
  chosen.Serial = SerialOf(chosen.Path, present);
  return chosen;
}

std::string PathOfChosen(const ChosenDevice& chosen, const SerialDeviceList& present) {
  if (!chosen.Link.empty()) return LinksFollowed(chosen.Link);
  if (!QFileInfo::exists(ToQt(chosen.Path))) return chosen.Path;
  return SerialOf(chosen.Path, present) == chosen.Serial ? chosen.Path : std::string();
}

SerialTrouble SerialTroubleOf(const std::string& path) {
  struct stat found {};
  if (path.empty()) return SerialTrouble::NoPort;
  if (!IsPath(path) || ::stat(path.c_str(), &found) != 0) return SerialTrouble::Absent;
  if (!S_ISCHR(found.st_mode)) return SerialTrouble::NoDevice;
  if (::access(path.c_str(), R_OK | W_OK) != 0) return SerialTrouble::NotPermitted;
  return SerialTrouble::Other;
}

std::string SerialTroubleText(SerialTrouble trouble, const std::string& path) {
  switch (trouble) {
    case SerialTrouble::NoPort:
      return notices::kNoPortSet;
    case SerialTrouble::Absent:
      if (IsPath(path)) return notices::kPortAbsent.With({path});
      return notices::kPortNumberAbsent.With({path});
    case SerialTrouble::NoDevice:
      return notices::kPortNoDevice.With({path});
    case SerialTrouble::NotPermitted:
      return notices::kPortNotPermitted.With({path, GroupOf(path)});
    case SerialTrouble::UsedElsewhere:
      return notices::kPortUsed.With({path});
    case SerialTrouble::OtherDevice:
      return notices::kPortOtherDevice.With({path});
    case SerialTrouble::NeverThere:
      return notices::kPortNeverThere.With({path});
    case SerialTrouble::BadSpeed:
      return notices::kPortSpeed.With({path});
    case SerialTrouble::Other:
      break;
  }
  return notices::kPortClosed.With({path});
}

}  // namespace zepril
