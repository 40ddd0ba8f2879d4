// Asks for a page, takes its bytes as they come, and tells of its end when no step is under way.
#include "platform/qt/qt_page_fetcher.h"

#include <QByteArray>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include <utility>

namespace zepril {
namespace {

constexpr qint64 kBytesAtOnce = 1 << 18;

QUrl UrlOf(const std::string& url) {
  const QUrl sendable = QUrl::fromEncoded(QByteArray::fromStdString(SendableUrl(url)));
  const bool web =
      sendable.scheme() == QLatin1String("http") || sendable.scheme() == QLatin1String("https");
  return web && !sendable.host().isEmpty() ? sendable : QUrl();
}

// An answer with a status that tells of a fault is an answer all the same. One that says all is
// well and yet can't be had whole, like a packed page that unpacks beyond measure, is none.
bool IsAnswer(const QNetworkReply& reply, int status) {
  constexpr int kFirstFault = 300;
  if (reply.error() == QNetworkReply::NoError) return status != 0;
  return reply.error() >= QNetworkReply::ContentAccessDenied && status >= kFirstFault;
}

}  // namespace

QtPageFetcher::QtPageFetcher(Loop& loop, const std::string& version)
    : loop_(loop), program_("ZEPRIL/" + version) {
  manager_.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
}

QtPageFetcher::~QtPageFetcher() {
  Abandon();
}

void QtPageFetcher::Begin(const std::string& url, Asking asking) {
  page_ = {};
  const QUrl address = UrlOf(url);
  if (address.isEmpty()) return TellAfterThisStep();
  QNetworkRequest request(address);
  request.setHeader(QNetworkRequest::UserAgentHeader, QByteArray::fromStdString(program_));
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  request.setMaximumRedirectsAllowed(kMostRedirects);
  request.setDecompressedSafetyCheckThreshold(static_cast<qint64>(kLargestPage));
  reply_ = asking == Asking::Once ? AskOnce(request) : manager_.get(request);
  reply_->setReadBufferSize(kBytesAtOnce);
  QObject::connect(reply_, &QNetworkReply::readyRead, &context_, [this] { TakeBytes(); });
  QObject::connect(reply_, &QNetworkReply::finished, &context_, [this] { Ended(); });
}

QNetworkReply* QtPageFetcher::AskOnce(QNetworkRequest request) {
  request.setHeader(QNetworkRequest::ContentLengthHeader, 0);
  request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("text/plain"));
  request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
  return manager_.sendCustomRequest(request, QByteArrayLiteral("GET"), &no_body_);
}

void QtPageFetcher::Abandon() {
  ++*turn_;
  page_ = {};
  if (!reply_) return;
  reply_->disconnect();
  // What the reply holds back would keep its connection open.
  reply_->setReadBufferSize(0);
  reply_->abort();
  reply_->deleteLater();
  reply_ = nullptr;
  manager_.clearConnectionCache();
}

void QtPageFetcher::TakeBytes() {
  const QByteArray bytes = reply_->readAll();
  page_.Body.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  if (page_.Body.size() <= kLargestPage) return;
  Abandon();
  page_.Outcome = PageOutcome::TooLarge;
  TellAfterThisStep();
}

void QtPageFetcher::Ended() {
  TakeBytes();
  // Given up meanwhile.
  if (!reply_) return;
  page_.Status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  page_.ContentType =
      reply_->header(QNetworkRequest::ContentTypeHeader).toString().toLatin1().toStdString();
  page_.Outcome = IsAnswer(*reply_, page_.Status) ? PageOutcome::Loaded : PageOutcome::Failed;
  reply_->disconnect();
  reply_->deleteLater();
  reply_ = nullptr;
  TellAfterThisStep();
}

void QtPageFetcher::TellAfterThisStep() {
  const std::weak_ptr<std::int64_t> alive = turn_;
  loop_.Post([this, alive, turn = ++*turn_] {
    const auto now = alive.lock();
    if (now && *now == turn) Finish(std::exchange(page_, {}));
  });
}

}  // namespace zepril
