// Where NMEA sentences come from: a serial port, or a file that another program drops. Whatever
// comes lies in the state (`NmeaBuffer`), the last of it, until it is read there.
//
// The setting is a port's number ("3", "3 SAVE", "COM3"), a device ("/dev/ttyACM0"), or a file
// ("C:\GPS.TXT"). A text without a number in front is none of these with the word SAVE in it or up
// to three characters. Only an ordinary file in which sentences stand is a file: it is read and
// removed. A device that is lost is tried again every ten seconds by a timer, never another one in
// its place.
//
// The buffer lives for the run; how old a piece of it is, is known for as long as it is held.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

#include "core/state/gps.h"
#include "core/timer.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/serial_port.h"

namespace zepril {

// True for a setting that is meant as a source and can be none, like "ABC" and "GPSSAVE.TXT". An
// empty one and one with 0 in front switch the GPS off.
bool IsNoNmeaSource(std::string_view setting);

class NmeaSource {
 public:
  static constexpr int kReopenMilliseconds = 10000;

  // Takes the event of the port from `Open` to `Close`. All that is given must outlive it.
  NmeaSource(GpsState& gps, SerialPort& port, Files& disk, const Clock& clock);
  ~NmeaSource();
  NmeaSource(const NmeaSource&) = delete;
  NmeaSource& operator=(const NmeaSource&) = delete;

  // The start of the run: a port that is open is closed, the one of the setting opened. What can't
  // be opened is no failure.
  void Open();
  void Close();
  // What has come since is in the buffer behind this; a file is gone.
  void Take();
  // Seconds since what stands at `place` (from 0) of the buffer has come.
  double SecondsSinceItCame(std::size_t place) const;
  // Seconds since it was said: what a file tells was said when the file was changed last. Endless
  // where that can't be known.
  double SecondsSinceItWasSaid(std::size_t place) const;

  // The setting names one.
  bool IsThere() const;
  // Why nothing can come, as a sentence for the operator; empty when all is well.
  std::string Trouble() const;

  // When a lost port is tried again; to be driven by whoever owns the loop.
  Timer ReopenTimer{kReopenMilliseconds};

 private:
  // The port that the setting means, as a port is asked for it; empty when it means none. What was
  // a port once in this run is no file any more.
  std::string PortText() const;
  std::string FindPort() const;
  int Baud() const;
  void Drain();
  void TakeFile();
  // The file's text, and what it is about it that it can't be taken; nothing of both when it is to
  // be looked at again.
  struct FileText {
    std::string Text;
    FileStamp Stamp;
    std::string Trouble;
  };
  FileText ReadFile(const std::string& path) const;
  bool CameLately() const;
  // `age`: seconds since it was said.
  void Add(std::string_view text, double age);

  // A piece of what is held, and when it was said and came.
  struct Arrival {
    std::int64_t End;  // behind it, in characters of the run
    double SaidAt;     // monotonic seconds
    double CameAt;
  };
  const Arrival& ArrivalOf(std::size_t place) const;

  GpsState& gps_;
  SerialPort& port_;
  Files& disk_;
  const Clock& clock_;
  std::string port_text_;  // of a port that was found
  bool opened_ = false;    // the port's event is taken
  std::deque<Arrival> arrivals_;
  std::int64_t count_ = 0;  // of all characters that came in this run
  std::string file_trouble_;
};

}  // namespace zepril
