// Serial devices of this computer, for people: which there are, which one a text means, and why one
// can't be opened.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/serial_device.h"

namespace zepril {

// The devices that are there: USB adapters first, then modems, radio links, built-in ports. Port
// number n is the n-th of them unless a device was chosen for it.
std::vector<SerialDevice> PresentSerialDevices();
// The order of that list.
bool ComesBefore(const SerialDevice& a, const SerialDevice& b);

// Where the system keeps links that stay with their devices: "/dev/serial/by-id". Tests play
// devices with names by a folder of links that ZEPRIL_SERIAL_BY_ID in the environment tells; then
// there are no others.
std::string SerialLinkFolder();

// The link in `folder` that leads to the device; empty when none does.
std::string StableSerialPath(const std::string& path,
                             const std::string& folder = SerialLinkFolder());

// What the operator has chosen for a port number: a device's name or path; empty when nothing.
using PortBook = std::function<std::string(int number)>;

// The native path that `device` means, links followed as far as they lead.
//   "3" and "COM3": the text of ZEPRIL_COM3 in the environment when there is one, else what `book`
//     says, else the third of the `present` devices; "COM3" when there are fewer
//   "ttyUSB0": "/dev/ttyUSB0"; a text with "/" is a path as it is
// Empty for a number below 1 and for an empty text: these mean no port.
std::string SerialDevicePath(std::string_view device, const PortBook& book = {},
                             const SerialDeviceList& present = PresentSerialDevices);

// A device as it was chosen: found again under another path, and not taken for another device that
// has its path meanwhile.
struct ChosenDevice {
  std::string Path;      // native, links followed
  std::string Link;      // the name that stays with it; empty when it has none
  std::string Serial;    // of the adapter, may be empty; counts where there is no link
  bool Present = false;  // it was there
  bool Counted = false;  // found only by its place among the devices that were there

  // By which it is known again in another run: the link, else path and serial number.
  std::string LastingName() const;
};

// The device that `device` means now, read as by SerialDevicePath.
ChosenDevice ChooseSerialDevice(std::string_view device, const PortBook& book = {},
                                const SerialDeviceList& present = PresentSerialDevices,
                                const std::string& folder = SerialLinkFolder());

// The path of a chosen device that was there, as it is now; empty when another device has taken its
// place.
std::string PathOfChosen(const ChosenDevice& chosen,
                         const SerialDeviceList& present = PresentSerialDevices);

// Why opening failed, as a sentence for the operator.
enum class SerialTrouble {
  NoPort,         // the text means no port
  Absent,         // nothing of that name, or no device for the number
  NoDevice,       // a file or folder
  NotPermitted,   // this user may not
  UsedElsewhere,  // another program has it
  OtherDevice,    // another device has the path of the one that was chosen
  NeverThere,     // nothing stood behind the number when the program was started
  BadSpeed,       // the speed is none
  Other,
};
std::string SerialTroubleText(SerialTrouble trouble, const std::string& path);

// What stands in the way of opening `path`, as far as the system tells without opening it; `Other`
// when nothing does.
SerialTrouble SerialTroubleOf(const std::string& path);

}  // namespace zepril
