// Web pages played by the test: it records what is asked for and answers when told to.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/page_fetcher.h"

namespace zepril {

class FakePages final : public PageFetcher {
 public:
  // The page under way has come, with the body `text`.
  void Answer(const std::string& text, int status = 200) {
    Page page;
    page.Outcome = PageOutcome::Loaded;
    page.Status = status;
    page.ContentType = "text/html";
    page.Body = text;
    Finish(std::move(page));
  }
  // It can't be had.
  void Fail(PageOutcome outcome = PageOutcome::Failed) {
    Page page;
    page.Outcome = outcome;
    Finish(std::move(page));
  }

  std::vector<std::string> Asked;  // addresses as they began to be fetched
  std::vector<Asking> How;         // of each of them
  int Abandoned = 0;

 private:
  void Begin(const std::string& url, Asking asking) override {
    Asked.push_back(url);
    How.push_back(asking);
  }
  void Abandon() override { ++Abandoned; }
};

}  // namespace zepril
