// A packet engine's TCP/IP interface on this computer, as far as the program speaks to one.
//
// It listens on 127.0.0.1 only. Programs register ("X", always accepted), ask for monitored frames
// ("m") and hand over text to be sent ("V"); other frames are read and ignored. Nobody can hold it
// up: a program that does not read what it asked for, sends a frame that is none, or comes when all
// places are taken, is cut off.
//
// One thread; everything happens in `Serve`.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/event.h"

namespace zepril {

// What a program asked to send.
struct AgwUnproto {
  int Port = 0;
  std::string From;
  std::string To;
  std::string Path;  // comma list, empty without digipeaters
  std::string Text;
};

// Reads the data of a "V" frame: the count of digipeaters, 10 bytes for each, the text. False when
// the data is shorter than its count says.
bool ReadAgwUnproto(std::string_view data, std::string& path, std::string& text);

class AgwServer {
 public:
  static constexpr std::size_t kMostClients = 16;
  static constexpr std::size_t kMostUnsent = 1u << 20;  // bytes waiting for one client
  static constexpr std::size_t kLongestData = 65536;    // bytes behind a header

  // Listens on `port`, 0 for any free one. Nothing when that is not possible.
  static std::unique_ptr<AgwServer> Open(int port);
  // Takes over `listener`, which listens on `port` and does not block.
  AgwServer(int listener, int port) : listener_(listener), port_(port) {}
  ~AgwServer();
  AgwServer(const AgwServer&) = delete;
  AgwServer& operator=(const AgwServer&) = delete;

  int Port() const { return port_; }
  std::size_t Clients() const { return clients_.size(); }
  // How many of them have asked for monitored frames.
  std::size_t Monitoring() const;

  // Takes and gives what is there; waits for at most `milliseconds` when there is nothing.
  void Serve(int milliseconds);
  // Hands `frame` to every monitoring client.
  void Broadcast(std::string_view frame);

  // A client has handed over text to be sent.
  Event<const AgwUnproto&> Sent;

 private:
  struct Client {
    int Descriptor = -1;
    bool Monitors = false;
    bool Cut = false;
    std::string Received;
    std::string Unsent;
  };

  void Accept();
  void Read(Client& client);
  void Write(Client& client);
  void TakeFrames(Client& client);
  void TakeFrame(Client& client, std::string_view frame);

  int listener_;
  int port_;
  std::vector<Client> clients_;
};

}  // namespace zepril
