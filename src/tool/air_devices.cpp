// The kinds of device, and the lines that tell what was sent to one.
#include "tool/air_devices.h"

#include <utility>

#include "core/text_fields.h"
#include "tool/pty_line.h"
#include "tool/pty_modem.h"

namespace zepril {
namespace {

constexpr double kPeaceSeconds = 3.0;

std::string Printable(std::string_view text) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  std::string line;
  for (const char c : text) {
    const auto code = static_cast<std::size_t>(Asc(c));
    if (code >= 32) {
      line += c;
    } else {
      line += {'\\', 'x', kHex[code / 16], kHex[code % 16]};
    }
  }
  return line;
}

std::string Packet(const std::string& from, const std::string& to, const std::string& path,
                   const std::string& text) {
  const std::string calls = path.empty() ? to : to + ',' + path;
  return Printable(from + '>' + calls + ':' + text) + '\n';
}

class EngineDevice final : public AirDevice {
 public:
  EngineDevice(std::unique_ptr<AgwServer> server, const ReportLine& report)
      : server_(std::move(server)) {
    server_->Sent = [report](const AgwUnproto& unproto) { report(SentLine(unproto)); };
  }
  std::string ReadyLine() const override { return "READY " + WholeNumber(server_->Port()) + '\n'; }
  void Serve(int milliseconds) override { server_->Serve(milliseconds); }
  bool IsListenedTo(double) override { return server_->Monitoring() > 0; }
  void Hear(const AirPacket& packet, const LocalTime& time) override {
    server_->Broadcast(MonitorFrame(packet, time));
  }

 private:
  std::unique_ptr<AgwServer> server_;
};

// It hears nothing of the air.
class WebDevice final : public AirDevice {
 public:
  WebDevice(std::unique_ptr<WebServer> server, const WebManners& manners,
            std::vector<WebPage> pages, const ReportLine& report, const Clock& clock)
      : server_(std::move(server)) {
    server_->Asked = [report, manners, &clock, pages = std::move(pages)](std::string_view target) {
      if (auto page = WebPageOf(target, clock.Now(), manners)) return *page;
      if (const auto message = ReadWebForm(target)) {
        report(WebMessageLine(*message));
        return WebAnswer{200, "<html><body>Message taken</body></html>"};
      }
      report(WebPageLine(target));
      for (const WebPage& page : pages) {
        if (target.substr(0, target.find('?')) == page.Path) return page.Answer(target);
      }
      return WebAnswer{};
    };
  }
  std::string ReadyLine() const override {
    return "READY web " + WholeNumber(server_->Port()) + '\n';
  }
  void Serve(int milliseconds) override { server_->Serve(milliseconds); }
  bool IsListenedTo(double) override { return false; }
  void Hear(const AirPacket&, const LocalTime&) override {}

 private:
  std::unique_ptr<WebServer> server_;
};

class AprsIsDevice final : public AirDevice {
 public:
  AprsIsDevice(std::unique_ptr<AprsIsServer> server, const ReportLine& report)
      : server_(std::move(server)) {
    server_->Line = [report](std::string_view line) { report(ServerLine(line)); };
  }
  std::string ReadyLine() const override {
    return "READY aprs-is " + WholeNumber(server_->Port()) + '\n';
  }
  void Serve(int milliseconds) override { server_->Serve(milliseconds); }
  // It hears nothing of the air.
  bool IsListenedTo(double) override { return false; }
  void Hear(const AirPacket&, const LocalTime&) override {}

 private:
  std::unique_ptr<AprsIsServer> server_;
};

class ModemDevice final : public AirDevice {
 public:
  ModemDevice(std::unique_ptr<PtyModem> modem, double rate, const ReportLine& report)
      : modem_(std::move(modem)), peace_seconds_(kPeaceSeconds / rate) {
    const std::string name(modem_->Model().Name());
    modem_->Model().Sent = [report, name](const ModemSending& sending) {
      report(ModemSentLine(name, sending));
    };
    modem_->Model().CommandCame = [report, name](const std::string& command) {
      report(CommandLine(name, command));
    };
  }
  std::string ReadyLine() const override {
    return "READY " + std::string(modem_->Model().Name()) + ' ' + modem_->Link() + '\n';
  }
  void Serve(int milliseconds) override { modem_->Serve(milliseconds); }
  bool IsListenedTo(double now) override {
    if (modem_->BytesTaken() != taken_) {
      taken_ = modem_->BytesTaken();
      last_word_ = now;
    }
    return modem_->Model().Runs() && now - last_word_ >= peace_seconds_;
  }
  void Hear(const AirPacket& packet, const LocalTime&) override { modem_->Hear(packet); }

 private:
  std::unique_ptr<PtyModem> modem_;
  double peace_seconds_;
  std::size_t taken_ = 0;
  double last_word_ = 0;
};

// It hears nothing of the air, and nobody's words.
class GpsDevice final : public AirDevice {
 public:
  GpsDevice(std::unique_ptr<PtyLine> line, std::vector<GpsPoint> route, GpsManner manner,
            double rate, const Clock& clock)
      : line_(std::move(line)),
        route_(std::move(route)),
        talker_(manner),
        rate_(rate),
        clock_(clock),
        begin_(clock.MonotonicSeconds()) {}
  std::string ReadyLine() const override { return "READY gps " + line_->Link() + '\n'; }
  void Serve(int milliseconds) override {
    line_->Serve(milliseconds, [](std::string_view) {});
    const double gone = clock_.MonotonicSeconds() - begin_;
    if (gone < count_) return;
    // After a pause one is said, not all that were missed.
    count_ = static_cast<int>(gone);
    const double metres = gone * rate_ * kKnots * kMetresPerSecondPerKnot;
    const std::string text =
        talker_.Say({PointOfRoute(route_, metres), clock_.Now(), kKnots, count_});
    if (line_->SomebodyIsThere()) line_->Say(text);
    ++count_;
  }
  bool IsListenedTo(double) override { return false; }
  void Hear(const AirPacket&, const LocalTime&) override {}

 private:
  static constexpr double kKnots = 43.2;
  static constexpr double kMetresPerSecondPerKnot = 1852.0 / 3600.0;

  std::unique_ptr<PtyLine> line_;
  std::vector<GpsPoint> route_;
  GpsTalker talker_;
  double rate_;
  const Clock& clock_;
  double begin_;
  int count_ = 0;  // seconds that were spoken of
};

}  // namespace

std::unique_ptr<AirDevice> OpenEngineDevice(int port, const ReportLine& report) {
  auto server = AgwServer::Open(port);
  if (!server) return nullptr;
  return std::make_unique<EngineDevice>(std::move(server), report);
}

std::unique_ptr<AirDevice> OpenWebDevice(int port, const WebManners& manners,
                                         std::vector<WebPage> pages, const ReportLine& report,
                                         const Clock& clock) {
  auto server = WebServer::Open(port, &clock);
  if (!server) return nullptr;
  return std::make_unique<WebDevice>(std::move(server), manners, std::move(pages), report, clock);
}

std::unique_ptr<AirDevice> OpenAprsIsDevice(int port, const AprsIsManners& manners,
                                            const ReportLine& report, const Clock& clock) {
  auto server = AprsIsServer::Open(port, manners, clock);
  if (!server) return nullptr;
  return std::make_unique<AprsIsDevice>(std::move(server), report);
}

std::unique_ptr<AirDevice> OpenModemDevice(const std::string& link,
                                           std::unique_ptr<ModemModel> model, double rate,
                                           const ReportLine& report) {
  auto modem = PtyModem::Open(link, std::move(model));
  if (!modem) return nullptr;
  return std::make_unique<ModemDevice>(std::move(modem), rate, report);
}

std::unique_ptr<AirDevice> OpenGpsDevice(const std::string& link, std::vector<GpsPoint> route,
                                         GpsManner manner, double rate, const Clock& clock) {
  auto line = PtyLine::Open(link);
  if (!line) return nullptr;
  return std::make_unique<GpsDevice>(std::move(line), std::move(route), manner, rate, clock);
}

std::string SentLine(const AgwUnproto& unproto) {
  return "SENT " + WholeNumber(unproto.Port) + ' ' +
         Packet(unproto.From, unproto.To, unproto.Path, unproto.Text);
}

std::string ModemSentLine(std::string_view modem, const ModemSending& sending) {
  return "SENT " + std::string(modem) + ' ' + Printable(sending.Mode) + ' ' +
         Packet(sending.From, sending.To, sending.Path, sending.Text);
}

std::string ServerLine(std::string_view line) {
  return "LINE aprs-is " + Printable(line) + '\n';
}

std::string CommandLine(std::string_view modem, std::string_view command) {
  return "COMMAND " + std::string(modem) + ' ' + Printable(command) + '\n';
}

std::string WebPageLine(std::string_view target) {
  return "PAGE web " + Printable(target) + '\n';
}

std::string WebMessageLine(const WebFormMessage& message) {
  return "MESSAGE web " + Printable(message.From + ' ' + message.To + ' ' + message.Text) + '\n';
}

}  // namespace zepril
