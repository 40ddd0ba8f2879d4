// The start panel: takes the settings of the operator before the main window opens, and sets up a
// serial modem.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "config/start_panel_settings.h"
#include "core/controls/start_panel_controls.h"
#include "core/state/radio.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/serial_device.h"
#include "platform/serial_port.h"

namespace zepril {

// What the machine gives to the start panel.
struct StartPanelPlatform {
  Files& FileSystem;
  Clock& LocalClock;
  Dialogs& Boxes;
  SerialPort& Modem;         // closed before and after
  SerialDeviceList Devices;  // for the list of the port field; may be empty
};

class StartPanel {
 public:
  // `temp`: the environment's TEMP, empty when there is none.
  StartPanel(StartPanelPlatform platform, std::string program_folder, const std::string& temp);
  StartPanel(const StartPanel&) = delete;
  StartPanel& operator=(const StartPanel&) = delete;

  StartPanelControls Controls;
  // Told when START has stored the settings and set up the modem: the main window may open.
  std::function<void()> Started;

  const StartPanelSettings& Settings() const { return settings_; }
  // START has told the modem everything; true without a modem.
  bool ModemIsSetUp() const { return modem_is_set_up_; }
  // START is under way or has come to its end; what is asked for meanwhile comes afterwards.
  bool Starting() const { return starting_; }

  // The port field is entered: its list is to show what is there by now.
  void ReadDevices();
  // The list is opened: likewise, and an empty one is explained.
  void DeviceListOpens();

 private:
  // What stands in the port fields; those of the other interfaces are kept while one is shown.
  struct PortFields {
    std::string Port;   // number, device or host
    std::string Speed;  // or host port
    std::string Held;   // `Port` as the settings have it: untouched it changes nothing
  };
  struct Interface {
    OptionButton* Option;
    RadioMode Mode;
    PortFields* Fields;  // null: it has none
    bool Serial() const { return Fields != nullptr && Mode != RadioMode::AgwRemote; }
  };
  struct PortChoice {
    double Number;
    std::string Device;  // to be kept for the number; empty: nothing is to be kept
  };

  void Load();
  void DeleteRunLogs();
  void ShowSettings();
  std::string PortText(double number) const;

  const Interface& Chosen() const;
  void ChooseInterface(const Interface& chosen);
  void FallBackToSlowSpeed();
  void KeepPortFields();
  void ShowPortFields();
  void PortChanged();
  void SpeedChanged();

  void Command1Click();
  bool CallIsThere();
  bool StoreFields();
  void EnableFields(bool enabled);
  void TakeFields();
  void TakeMapsPath();
  bool TakeModem();
  PortChoice ChosenPort(const PortFields& fields, double held, int usual_number) const;
  std::string StableName(const std::string& device) const;
  bool CantWrite(const char* name);
  std::string ShownPort() const;
  void LeaveConverseOfLastRun();
  void SetUpModem();

  Files& files_;
  Clock& clock_;
  Dialogs& dialogs_;
  SerialPort& modem_;
  SerialDeviceList devices_;
  std::vector<SerialDevice> present_;
  std::string program_folder_;
  StartPanelSettings settings_;
  PortFields pk232_fields_;
  PortFields host_fields_;
  PortFields scs_fields_;
  std::array<Interface, 6> interfaces_;
  PortFields* shown_ = nullptr;  // what stands in Text3 and Text4
  bool starting_ = false;
  bool modem_is_set_up_ = true;
};

}  // namespace zepril
