// Fills the list of the port field and finds the names of devices.
#include "station/start/device_list.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace zepril {
namespace {

std::string ListText(const SerialDevice& device) {
  return device.Name.empty() ? device.Path : device.Path + "   " + device.Name;
}

}  // namespace

DeviceList::DeviceList(SerialDeviceList read, ComboBox& field)
    : read_(std::move(read)), field_(field) {}

std::vector<SerialDevice> DeviceList::Present() const {
  return read_ ? read_() : std::vector<SerialDevice>();
}

void DeviceList::Read(bool wanted) {
  present_.clear();
  if (wanted) present_ = Present();
  field_.Items.clear();
  field_.ListIndex = -1;
  for (const SerialDevice& device : present_) {
    if (!field_.Text.empty() && (field_.Text == device.Path || field_.Text == device.StablePath)) {
      field_.ListIndex = static_cast<int>(field_.Items.size());
    }
    field_.Items.push_back(ListText(device));
  }
}

void DeviceList::TakeChosenRow() {
  for (const SerialDevice& device : present_) {
    if (field_.Text == ListText(device)) field_.Text = device.Path;
  }
}

bool DeviceList::IsDevice(const std::string& text) const {
  constexpr std::string_view kFolder = "/dev/";
  if (text.starts_with(kFolder)) return true;
  const std::vector<SerialDevice> all = Present();
  return !text.empty() && std::any_of(all.begin(), all.end(), [&](const SerialDevice& device) {
    return text == device.Path || text == device.StablePath ||
           std::string(kFolder) + text == device.Path;
  });
}

std::string DeviceList::StableNameOfPlace(int number) const {
  const std::vector<SerialDevice> all = Present();
  if (number < 1 || number > static_cast<int>(all.size())) return {};
  const SerialDevice& device = all[static_cast<std::size_t>(number - 1)];
  return device.StablePath.empty() ? device.Path : device.StablePath;
}

std::string DeviceList::StableName(const std::string& device) const {
  const std::string path = device.find('/') == std::string::npos ? "/dev/" + device : device;
  for (const SerialDevice& present : Present()) {
    if (present.Path == path && !present.StablePath.empty()) return present.StablePath;
  }
  return path;
}

}  // namespace zepril
