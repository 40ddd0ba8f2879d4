// A modem model on a pseudo-terminal that lives beside the test, in a thread of its own.
#pragma once

#include <atomic>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "tool/air_devices.h"
#include "tool/pty_modem.h"

namespace zepril {

class ServedModem {
 public:
  // `link` is made by the modem and must not exist.
  ServedModem(const std::string& link, std::unique_ptr<ModemModel> model)
      : modem_(PtyModem::Open(link, std::move(model))) {
    if (!modem_) return;
    const std::string name(modem_->Model().Name());
    modem_->Model().Sent = [this, name](const ModemSending& sending) {
      sent_.push_back(ModemSentLine(name, sending));
    };
    modem_->Model().CommandCame = [this](const std::string& command) {
      commands_.push_back(command);
    };
    thread_ = std::thread([this] { Run(); });
  }
  ~ServedModem() {
    ended_ = true;
    if (thread_.joinable()) thread_.join();
  }
  ServedModem(const ServedModem&) = delete;
  ServedModem& operator=(const ServedModem&) = delete;

  bool Stands() const { return modem_ != nullptr; }
  // Turned off as soon as it has taken this many bytes.
  void HangUpBehind(std::size_t bytes) { longest_ = bytes; }

  std::string Setting(const std::string& name) {
    return Ask<std::string>([&](PtyModem& modem) { return modem.Model().Setting(name); });
  }
  bool Runs() {
    return Ask<bool>([](PtyModem& modem) { return modem.Model().Runs(); });
  }
  std::size_t BytesTaken() {
    return Ask<std::size_t>([](PtyModem& modem) { return modem.BytesTaken(); });
  }
  std::vector<std::string> Sent() {
    return Ask<std::vector<std::string>>([this](PtyModem&) { return sent_; });
  }
  // Commands it was given since the last question.
  std::vector<std::string> NewCommands() {
    return Ask<std::vector<std::string>>(
        [this](PtyModem&) { return std::exchange(commands_, {}); });
  }
  void Hear(const AirPacket& packet) {
    Ask<bool>([&](PtyModem& modem) {
      modem.Hear(packet);
      return true;
    });
  }
  // The answer of `question`, asked between two turns of the modem.
  template <class Answer>
  Answer Ask(const std::function<Answer(PtyModem&)>& question) {
    std::promise<Answer> promise;
    {
      const std::lock_guard lock(mutex_);
      questions_.push_back([&](PtyModem& modem) { promise.set_value(question(modem)); });
    }
    return promise.get_future().get();
  }

 private:
  void Run() {
    constexpr int kTurnMilliseconds = 2;
    while (!ended_) {
      std::vector<std::function<void(PtyModem&)>> questions;
      {
        const std::lock_guard lock(mutex_);
        questions.swap(questions_);
      }
      // What was said before a question is dealt with before its answer.
      modem_->Serve(kTurnMilliseconds);
      if (modem_->BytesTaken() >= longest_) modem_->HangUp();
      for (const auto& question : questions)
        question(*modem_);
    }
  }

  std::unique_ptr<PtyModem> modem_;
  std::vector<std::string> sent_;
  std::vector<std::string> commands_;
  std::mutex mutex_;
  std::vector<std::function<void(PtyModem&)>> questions_;
  std::atomic<std::size_t> longest_{static_cast<std::size_t>(-1)};
  std::atomic<bool> ended_{false};
  std::thread thread_;
};

}  // namespace zepril
