// Pages by Qt's network access: http and https, redirects, packed answers, no cache, no cookies.
#pragma once

#include <QIODevice>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QObject>
#include <QPointer>

#include <cstdint>
#include <memory>
#include <string>

#include "platform/loop.h"
#include "platform/page_fetcher.h"

class QNetworkReply;

namespace zepril {

// A body without a byte that can't be read a second time. Qt asks again by itself when a connection
// breaks before the answer, but for a request that goes with such a body.
class NoBody final : public QIODevice {
 public:
  NoBody() { open(QIODevice::ReadOnly); }
  bool isSequential() const override { return true; }

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char*, qint64) override { return -1; }
};

// Who asked is told in a step of his own, never within another one.
class QtPageFetcher final : public PageFetcher {
 public:
  static constexpr int kMostRedirects = 10;

  // `version` of the program: the servers are told both.
  QtPageFetcher(Loop& loop, const std::string& version);
  ~QtPageFetcher() override;

 private:
  void Begin(const std::string& url, Asking asking) override;
  QNetworkReply* AskOnce(QNetworkRequest request);
  void Abandon() override;
  void TakeBytes();
  void Ended();
  void TellAfterThisStep();

  Loop& loop_;
  std::string program_;
  QNetworkAccessManager manager_;
  QPointer<QNetworkReply> reply_;
  NoBody no_body_;
  Page page_;        // under way, or not yet told
  QObject context_;  // of what Qt tells
  // Rises with each page that was begun or given up; shared with what was posted.
  std::shared_ptr<std::int64_t> turn_ = std::make_shared<std::int64_t>(0);
};

}  // namespace zepril
