// What a played file of packets is heard through: a packet engine, or a modem on a serial line.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "tool/agw_server.h"
#include "tool/air_script.h"
#include "tool/aprs_is_server.h"
#include "tool/gps_route.h"
#include "tool/modem_model.h"
#include "tool/web_pages.h"
#include "tool/web_server.h"

namespace zepril {

class AirDevice {
 public:
  virtual ~AirDevice() = default;
  // "READY 8000" and a line feed.
  virtual std::string ReadyLine() const = 0;
  // Takes and gives what is there; waits for at most `milliseconds` when there is nothing.
  virtual void Serve(int milliseconds) = 0;
  // A program hears what it receives. `now` in monotonic seconds.
  virtual bool IsListenedTo(double now) = 0;
  virtual void Hear(const AirPacket& packet, const LocalTime& time) = 0;
};

// Told each line of report, with its line feed.
using ReportLine = std::function<void(const std::string& line)>;

// A packet engine on 127.0.0.1, `port` 0 for any free one. Nothing when that is not possible.
std::unique_ptr<AirDevice> OpenEngineDevice(int port, const ReportLine& report);

// Web services on 127.0.0.1, `port` 0 for any free one: the form for messages, the databases of
// stations, whose pages come in the `manners`, and `pages`. The clock is taken for UTC. Nothing
// when that is not possible.
std::unique_ptr<AirDevice> OpenWebDevice(int port, const WebManners& manners,
                                         std::vector<WebPage> pages, const ReportLine& report,
                                         const Clock& clock);

// An APRS-IS server on 127.0.0.1, `port` 0 for any free one. Nothing when that is not possible.
std::unique_ptr<AirDevice> OpenAprsIsDevice(int port, const AprsIsManners& manners,
                                            const ReportLine& report, const Clock& clock);

// `model` behind `link`. A program listens to it when it has set it up and left it in peace for
// 3 s, `rate` times less in a faster play. Nothing when the link can't be made.
std::unique_ptr<AirDevice> OpenModemDevice(const std::string& link,
                                           std::unique_ptr<ModemModel> model, double rate,
                                           const ReportLine& report);

// A GPS behind `link` that drives `route` at 80 km/h, `rate` times faster in a faster play, a
// second's sentences a second. It tells the time of `clock` as UTC. Nothing when the link can't be
// made.
std::unique_ptr<AirDevice> OpenGpsDevice(const std::string& link, std::vector<GpsPoint> route,
                                         GpsManner manner, double rate, const Clock& clock);

// Lines of report. Control characters of texts are written as "\x0D", so that each stays one line.
//   "SENT 1 QX7KB-9>ZEPR,WIDE1-1:=test"
std::string SentLine(const AgwUnproto& unproto);
//   "SENT pk232 300 QX7KB-9>ZEPR,WIDE1-1:=test"
std::string ModemSentLine(std::string_view modem, const ModemSending& sending);
//   "COMMAND pk232 MYCALL QX7KB-9"
std::string CommandLine(std::string_view modem, std::string_view command);
//   "LINE aprs-is QX7AB>ZEPR,qAR,QX7KB:!tst\x0D\x0A"
std::string ServerLine(std::string_view line);
//   "PAGE web /text/sgas.txt"
std::string WebPageLine(std::string_view target);
//   "MESSAGE web QX7KB-9 AB1CD Hello{07"
std::string WebMessageLine(const WebFormMessage& message);

}  // namespace zepril
