// Draws the sample maps at a first run, beside the window's thread.
#pragma once

#include <QObject>

#include <atomic>
#include <string>
#include <thread>

#include "platform/event.h"
#include "platform/native/native_files.h"

namespace zepril {

class SampleMapWorker final : public QObject {
 public:
  // `source`: folder of the map data; `target`: that of the scale folders.
  SampleMapWorker(std::string source, std::string target);
  ~SampleMapWorker() override;  // ends early; whole tiles stay and the next run goes on

  void Begin();
  // Told in the window's thread; done == total at the end.
  Event<int, int> Progress;

 private:
  NativeFiles files_{DefaultDriveFolder()};  // the thread's own
  std::string source_;
  std::string target_;
  std::atomic<bool> wanted_ = true;
  std::thread thread_;
};

}  // namespace zepril
