// Words the pages.
#include "tool/iono_web_pages.h"

#include <array>
#include <string>
#include <utility>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::array<std::pair<std::string_view, IonoPageManner>, 6> kManners{
    {{"whole", IonoPageManner::Whole},
     {"html", IonoPageManner::Html},
     {"k-only", IonoPageManner::KOnly},
     {"other", IonoPageManner::Other},
     {"empty", IonoPageManner::Empty},
     {"absent", IonoPageManner::Absent}}};

constexpr std::string_view kKOfPageA =
    "GEOMAGNETIC ACTIVITY\r\nKIEL 3-HOUR K 3\r\nKIEL CURRENT K 4\r\n";
constexpr std::string_view kSunspotsOfPageA = "SUNSPOT NUMBER 88\r\n";
constexpr std::string_view kHeadOfPageB =
    ":Product: Solar and Geophysical Activity Summary\n"
    "# Prepared for the test of a station program\n"
    "A.  Energetic Events\nB.  Proton Events:  None\nC.  Geomagnetic Activity Summary:  quiet\n"
    "D.  Stratwarm:  not available\n"
    "E.  Daily Indices: (real-time preliminary/estimated values)\n";
constexpr std::string_view kSunspotsOfPageB =
    "10 cm 178  SSN 101  Afr/Ap 008/012   X-ray Background B9.9\n";
constexpr std::string_view kKOfPageB = "Boulder 1 3 2 2 2 3 2 2 Planetary 2 3 2 2 3 3 2 4\n";
constexpr std::string_view kEndOfPageB = "F.  Comments:  None\n";
constexpr std::string_view kOther =
    "This service has moved. Numbers are offered in another form, which is described elsewhere.\n";

std::string PageA(bool sunspots) {
  return std::string(kKOfPageA) + std::string(sunspots ? kSunspotsOfPageA : "");
}

std::string PageB(bool sunspots) {
  return std::string(kHeadOfPageB) + std::string(sunspots ? kSunspotsOfPageB : "") +
         std::string(kKOfPageB) + std::string(kEndOfPageB);
}

std::string Repeated(std::string_view text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i)
    all += text;
  return all;
}

// `page` makes the body, with sunspots or without.
WebAnswer AnswerIn(IonoPageManner manner, std::string (*page)(bool sunspots)) {
  constexpr const char* kPlain = "text/plain";
  switch (manner) {
    case IonoPageManner::Whole:
      return {200, page(true), kPlain};
    case IonoPageManner::Html:
      return {200, "<html><body><pre>" + page(true) + "</pre></body></html>"};
    case IonoPageManner::KOnly:
      return {200, page(false), kPlain};
    case IonoPageManner::Other:
      return {200, Repeated(kOther, 5), kPlain};
    case IonoPageManner::Empty:
      return {200, "", kPlain};
    case IonoPageManner::Absent:
      break;
  }
  return {};
}

std::optional<IonoPageManner> MannerNamed(std::string_view word) {
  for (const auto& [name, manner] : kManners) {
    if (name == word) return manner;
  }
  return std::nullopt;
}

}  // namespace

std::optional<IonoPageManners> IonoPageMannersNamed(std::string_view words) {
  const std::vector<std::string_view> named = Split(words, ',');
  const auto a = MannerNamed(named.front());
  const auto b = MannerNamed(named.back());
  if (!a || !b || named.size() > 2) return std::nullopt;
  return IonoPageManners{*a, *b};
}

std::vector<WebPage> IonoWebPages(IonoPageManners manners) {
  return {{"/magnetogram/index.html",
           [manners](std::string_view) { return AnswerIn(manners.A, PageA); }},
          {"/text/sgas.txt", [manners](std::string_view) { return AnswerIn(manners.B, PageB); }}};
}

}  // namespace zepril
