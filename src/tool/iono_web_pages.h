// The two pages of space weather as `zepril-tool air` serves them, good ones and bad.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "tool/web_server.h"

namespace zepril {

// How a page comes.
enum class IonoPageManner {
  Whole,   // as plain text
  Html,    // the same as HTML
  KOnly,   // without the sunspot number
  Other,   // in another layout, in which nothing is found
  Empty,   // with nothing in it
  Absent,  // not there
};

struct IonoPageManners {
  IonoPageManner A = IonoPageManner::Whole;  // /magnetogram/index.html
  IonoPageManner B = IonoPageManner::Whole;  // /text/sgas.txt
};

// "k-only" of both, "absent,whole" of one after the other; nothing for other words.
std::optional<IonoPageManners> IonoPageMannersNamed(std::string_view words);

std::vector<WebPage> IonoWebPages(IonoPageManners manners);

}  // namespace zepril
