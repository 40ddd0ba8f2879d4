// Tests the text of pages: plain ones as they came, HTML as it is seen.
#include "internet/body_text.h"

#include <gtest/gtest.h>

#include <string>

namespace zepril {
namespace {

std::string TextOf(const std::string& body, const std::string& type) {
  Page page;
  page.Outcome = PageOutcome::Loaded;
  page.Status = 200;
  page.ContentType = type;
  page.Body = body;
  return BodyText(page);
}

std::string Seen(const std::string& html) {
  return TextOf("<html>" + html, "text/html");
}

TEST(BodyTextTest, PlainTextStaysAsItCame) {
  const std::string text("a  b\r\n\n<p>\t&amp;\0\xFE c ", 20);
  EXPECT_EQ(TextOf(text, "text/plain"), text);
  EXPECT_EQ(TextOf(text, "application/json; charset=utf-8"), text);
}

TEST(BodyTextTest, WhatIsCalledHtmlWithoutMarkupStaysAsItCame) {
  const std::string raw = "20240514123000,QX7GW>APRS:!4830.15N/00805.20E>a  <b  &lt;\r\n";
  EXPECT_EQ(TextOf(raw, "text/html"), raw);
}

TEST(BodyTextTest, ABodyWithoutATypeIsHtmlWhenItBeginsLikeIt) {
  EXPECT_EQ(TextOf("\r\n <!DOCTYPE html><html><body>K  3</body></html>", ""), "K 3");
  EXPECT_EQ(TextOf("K  3 <br>", ""), "K  3 <br>");
}

TEST(BodyTextTest, TagsCommentsScriptsAndStylesAreNotSeen) {
  EXPECT_EQ(Seen("<b>a</b><!-- <p>x</p> -->b<SCRIPT type=x>if (a</b) c</scrip></SCRIPT >c"), "abc");
  EXPECT_EQ(Seen("<style>p { }</style><title>t</title>d<img alt='>'>e<i title=\"a>b\">f"), "def");
}

TEST(BodyTextTest, BlanksAndLineEndsBecomeOneBlank) {
  EXPECT_EQ(Seen("  a \r\n\t b  <i> c</i> "), "a b c");
}

TEST(BodyTextTest, BlocksAndBreaksEndLines) {
  EXPECT_EQ(Seen("<h1>a</h1><p>b</p> <p>c<br>d<br><br>e</p><hr>"), "a\r\nb\r\nc\r\nd\r\n\r\ne");
}

TEST(BodyTextTest, CellsAreABlankApart) {
  EXPECT_EQ(Seen("<table><tr><td>KIEL CURRENT K</td><td>4</td></tr><tr><th>x</th></tr></table>"),
            "KIEL CURRENT K 4\r\nx");
}

TEST(BodyTextTest, PreformattedTextKeepsItsBlanksAndLines) {
  EXPECT_EQ(Seen("<pre>\r\na   b\n c &lt;d&gt;\n</pre>e   f"), "a   b\n c <d>\ne f");
}

TEST(BodyTextTest, EntitiesBecomeCharacters) {
  EXPECT_EQ(Seen("&amp;&lt;&gt;&quot;&#65;&#x42;&nbsp;&nbsp;C &deg;&#8364;&#150;"),
            "&<>\"AB  C \xB0\x80\x96");
  EXPECT_EQ(Seen("&amp;amp; &no; & &#; &#x; &#xG1; &#99999999; R&D"),
            "&amp; &no; & &#; &#x; &#xG1; ? R&D");
}

TEST(BodyTextTest, SignsThatBeginNoTagAreText) {
  EXPECT_EQ(Seen("a < b <3 </ <> c<d"), "a < b <3 </ <> c<d");
}

TEST(BodyTextTest, MarkupThatNeverEndsEndsWithThePage) {
  EXPECT_EQ(Seen("a<!-- b > c"), "a");
  EXPECT_EQ(Seen("a<script> b > c"), "a");
  EXPECT_EQ(Seen("a<p class='b c d"), "a<p class='b c d");
  EXPECT_EQ(Seen("a<p class='b> c"), "a\r\nc");
}

TEST(BodyTextTest, Utf8IsBroughtToTheCodePageWhereItFits) {
  EXPECT_EQ(TextOf("<p>\xC3\xBC", "text/html; charset=UTF-8"), "\xFC");
  EXPECT_EQ(TextOf("<p>\xFC\x1C", "text/html; charset=UTF-8"), "\xFC\x1C");
  EXPECT_EQ(TextOf("<p>\xC3\xBC", "text/html"), "\xC3\xBC");
}

TEST(BodyTextTest, AHostilePageIsDoneInOnePass) {
  const std::size_t pieces = 300000;
  for (const char* piece : {"<a =\">", "<a", "&#1", "<!--", "<script></", "</", "<p>"}) {
    std::string html = "<html>";
    for (std::size_t i = 0; i < pieces; ++i)
      html += piece;
    EXPECT_LE(TextOf(html, "text/html").size(), html.size()) << piece;
    EXPECT_LE(TextOf(html + ">", "text/html").size(), html.size() + 1) << piece;
  }
}

}  // namespace
}  // namespace zepril
