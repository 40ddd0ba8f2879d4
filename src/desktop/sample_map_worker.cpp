// Runs the drawing in a thread, tells its progress in the window's one, and can end it early.
#include "desktop/sample_map_worker.h"

#include <QMetaObject>

#include <utility>

#include "sample_maps/sample_maps.h"

namespace zepril {

SampleMapWorker::SampleMapWorker(std::string source, std::string target)
    : source_(std::move(source)), target_(std::move(target)) {}

SampleMapWorker::~SampleMapWorker() {
  wanted_ = false;
  if (thread_.joinable()) thread_.join();
}

void SampleMapWorker::Begin() {
  thread_ = std::thread([this] {
    const auto tell = [this](int done, int total) {
      QMetaObject::invokeMethod(this, [this, done, total] {
        if (Progress) Progress(done, total);
      });
      return wanted_.load();
    };
    DrawSampleMaps(files_, source_, target_, tell);
    tell(1, 1);
  });
}

}  // namespace zepril
