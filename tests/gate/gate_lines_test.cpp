// Blocks of heard text in all four forms, the lines made of them, and what ends a block.
#include "gate/gate_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/text_fields.h"

namespace zepril {
namespace {

using Lines = std::vector<std::string>;

// What a modem of the dialect writes of one frame.
struct Heard {
  std::string Source = "QX7AB";
  std::string Destination = "ZEPR";
  std::vector<std::string> Via{};
  std::string Data = "!tst";
};

std::string Joined(const std::vector<std::string>& words, const std::string& between) {
  std::string text;
  for (const std::string& word : words)
    text += (text.empty() ? "" : between) + word;
  return text;
}

std::string EngineText(const Heard& heard) {
  const std::string via = heard.Via.empty() ? "" : " Via " + Joined(heard.Via, ",");
  return "1:Fm " + heard.Source + " To " + heard.Destination + via +
         " <UI pid=F0 Len=24 >[12:30:15]\r" + heard.Data + "\r\r";
}

std::string Pk232Text(const Heard& heard) {
  std::vector<std::string> calls{heard.Source};
  calls.insert(calls.end(), heard.Via.begin(), heard.Via.end());
  calls.push_back(heard.Destination);
  return Joined(calls, ">") + " <UI>:\r\n" + heard.Data + "\r\n";
}

std::string TncText(const Heard& heard) {
  const std::string via = heard.Via.empty() ? "" : " via " + Joined(heard.Via, " ");
  return "fm " + heard.Source + " to " + heard.Destination + via + " ctl UI pid F0\r\n" +
         heard.Data + "\r\n";
}

std::string PtcText(const Heard& heard) {
  return "1:" + TncText(heard);
}

struct Dialect {
  const char* Name;
  std::string (*Text)(const Heard&);
};

const Dialect kDialects[] = {
    {"AGW", EngineText}, {"PK-232", Pk232Text}, {"SCS TNC", TncText}, {"SCS PTC", PtcText}};

GateLines Gated(const std::string& dialect, const std::string& block,
                const std::string& call = "QX7KB") {
  return GateLinesOf(GateFormOf(dialect), block, call);
}

// The rest is a view into `block`.
void ExpectEnded(const std::string& dialect, const std::string& block, NotGated why,
                 const Lines& lines = {}) {
  const GateLines gated = Gated(dialect, block);
  EXPECT_EQ(gated.Why, why) << dialect << ": " << ::testing::PrintToString(block);
  EXPECT_EQ(gated.Lines, lines) << dialect << ": " << ::testing::PrintToString(block);
}

TEST(GateForms, EveryDialectWithAGateHasOne) {
  for (const Dialect& dialect : kDialects)
    EXPECT_NE(GateFormOf(dialect.Name), nullptr) << dialect.Name;
  EXPECT_EQ(GateFormOf("none"), nullptr);
  EXPECT_EQ(GateFormOf(""), nullptr);
}

TEST(GateLines, AFrameHeardDirectlyHasNoDigipeaters) {
  for (const Dialect& dialect : kDialects) {
    const std::string block = dialect.Text({});
    ExpectEnded(dialect.Name, block, NotGated::Nothing, {"QX7AB>ZEPR,qAR,QX7KB:!tst\r\n"});
  }
}

TEST(GateLines, TheEngineLosesTheFirstAsterisk) {
  EXPECT_EQ(Gated("AGW",
                  "1:Fm QX7AB To ZEPR Via WIDE1-1*,WIDE2-1 <UI pid=F0 Len=24 >[12:30:15]\r"
                  "data\r\r")
                .Lines,
            Lines{"QX7AB>ZEPR,WIDE1-1,WIDE2-1,qAR,QX7KB:data\r\n"});
  EXPECT_EQ(Gated("AGW", EngineText({.Via = {"WIDE1-1*", "WIDE2-1*"}})).Lines,
            Lines{"QX7AB>ZEPR,WIDE1-1,WIDE2-1*,qAR,QX7KB:!tst\r\n"});
}

TEST(GateLines, ThePk232LosesTheFirstAsteriskOfItsHeader) {
  EXPECT_EQ(Gated("PK-232", "QX7AB*>WIDE1-1>ZEPR <UI>:\r\ndata\r\n").Lines,
            Lines{"QX7AB>ZEPR,WIDE1-1,qAR,QX7KB:data\r\n"});
  EXPECT_EQ(Gated("PK-232", "QX7AB>WIDE1-1*>WIDE2-1*>ZEPR <UI>:\r\ndata\r\n").Lines,
            Lines{"QX7AB>ZEPR,WIDE1-1,WIDE2-1*,qAR,QX7KB:data\r\n"});
  // The ">" of the marker is none of the calls; the other markers are known too.
  EXPECT_EQ(Gated("PK-232", "QX7AB*>ZEPR [UI]:\r\nx>y z\r\n").Lines,
            Lines{"QX7AB>ZEPR,qAR,QX7KB:x>y z\r\n"});
  EXPECT_EQ(Gated("PK-232", "QX7AB*>ZEPR (ui):\r\ndata\r\n").Lines,
            Lines{"QX7AB>ZEPR,qAR,QX7KB:data\r\n"});
}

TEST(GateLines, AsterisksOfScsModemsStay) {
  const Lines expected{"QX7AB>ZEPR,WIDE1-1*,WIDE2-1,qAR,QX7KB:!tst\r\n"};
  EXPECT_EQ(Gated("SCS TNC", TncText({.Via = {"WIDE1-1*", "WIDE2-1"}})).Lines, expected);
  EXPECT_EQ(Gated("SCS PTC", PtcText({.Via = {"WIDE1-1*", "WIDE2-1"}})).Lines, expected);
}

TEST(GateLines, TheGatesCallIsTrimmedAndHasItsSsid) {
  for (const Dialect& dialect : kDialects) {
    EXPECT_EQ(Gated(dialect.Name, dialect.Text({}), " QX7KB-10 ").Lines,
              Lines{"QX7AB>ZEPR,qAR,QX7KB-10:!tst\r\n"});
  }
}

TEST(GateLines, OwnFramesAreToldAsTcpip) {
  for (const Dialect& dialect : kDialects) {
    const Lines own{"QX7KB>ZEPR,qAR,TCPIP:!tst\r\n"};
    EXPECT_EQ(Gated(dialect.Name, dialect.Text({.Source = "QX7KB"})).Lines, own);
    // Also one that merely begins like the own call, in any case of letters.
    EXPECT_EQ(Gated(dialect.Name, dialect.Text({.Source = "QX7KB-9"})).Lines,
              Lines{"QX7KB-9>ZEPR,qAR,TCPIP:!tst\r\n"});
    EXPECT_EQ(Gated(dialect.Name, dialect.Text({.Source = "qx7kb"})).Lines,
              Lines{"qx7kb>ZEPR,qAR,TCPIP:!tst\r\n"});
    EXPECT_EQ(Gated(dialect.Name, dialect.Text({.Source = "QX7KB"}), "QX7KB-10").Lines,
              Lines{"QX7KB>ZEPR,qAR,QX7KB-10:!tst\r\n"});
  }
}

TEST(GateLines, PathsThatForbidTheGateEndTheBlock) {
  for (const Dialect& dialect : kDialects) {
    for (const char* word : {"NOGATE", "RFONLY", "TCPIP", "TCPXX", "rfonly", "NoGate", "XTCPIPX"}) {
      ExpectEnded(dialect.Name, dialect.Text({.Via = {"WIDE1-1", word}}), NotGated::ForbiddenPath);
      ExpectEnded(dialect.Name, dialect.Text({.Destination = word}), NotGated::ForbiddenPath);
    }
    // In the data they forbid nothing.
    ExpectEnded(dialect.Name, dialect.Text({.Data = "NOGATE RFONLY"}), NotGated::Nothing,
                {"QX7AB>ZEPR,qAR,QX7KB:NOGATE RFONLY\r\n"});
  }
}

TEST(GateLines, WhereTheForbiddingWordsAreLookedForIsTheFormsOwn) {
  // The engine's whole line up to its bracket, what stands before the frame too.
  ExpectEnded("AGW", "TCPXX\r1:Fm QX7AB To ZEPR <UI pid=F0 >[12:30:15]\r!tst\r\r",
              NotGated::ForbiddenPath);
  ExpectEnded("AGW", "1:Fm QX7AB To ZEPR <UI NOGATE >[12:30:15]\r!tst\r\r",
              NotGated::ForbiddenPath);
  // An SCS modem's up to the pid.
  ExpectEnded("SCS TNC", "fm QX7AB to ZEPR ctl UI NOGATE pid F0\r\n!tst\r\n",
              NotGated::ForbiddenPath);
  ExpectEnded("SCS PTC", "RFONLY 1:fm QX7AB to ZEPR ctl UI pid F0\r\n!tst\r\n",
              NotGated::ForbiddenPath);
  // The PK-232's calls only.
  ExpectEnded("PK-232", "QX7AB>ZEPR NOGATE <UI>:\r\n!tst\r\n", NotGated::Nothing,
              {"QX7AB>ZEPR,qAR,QX7KB:!tst\r\n"});
}

TEST(GateLines, ForwardedFramesAndQueriesEndTheBlock) {
  for (const Dialect& dialect : kDialects) {
    for (const char* data : {"}QX1AB>ZEPR,TCPIP:!tst", "?APRS?", "}", "?"})
      ExpectEnded(dialect.Name, dialect.Text({.Data = data}), NotGated::ForwardedOrQuery);
    ExpectEnded(dialect.Name, dialect.Text({.Data = " ?APRS?"}), NotGated::Nothing,
                {"QX7AB>ZEPR,qAR,QX7KB: ?APRS?\r\n"});
  }
}

TEST(GateLines, FramesBehindOneThatMayNotGoStayToo) {
  for (const Dialect& dialect : kDialects) {
    const std::string first = dialect.Text({.Data = "one"});
    const std::string second = dialect.Text({.Via = {"rfonly"}, .Data = "two"});
    const std::string third = dialect.Text({.Data = "three"});
    const std::string block = first + second + third;
    const GateLines gated = Gated(dialect.Name, block);
    EXPECT_EQ(gated.Lines, Lines{"QX7AB>ZEPR,qAR,QX7KB:one\r\n"}) << dialect.Name;
    EXPECT_EQ(gated.Why, NotGated::ForbiddenPath) << dialect.Name;
    EXPECT_EQ(gated.Rest, second + third) << dialect.Name;
    EXPECT_EQ(Gated(dialect.Name, first + third).Lines.size(), 2U) << dialect.Name;
  }
}

TEST(GateLines, AllFramesOfABlockGo) {
  for (const Dialect& dialect : kDialects) {
    std::string block;
    for (int at = 0; at < 20; ++at)
      block += dialect.Text({.Data = "no. " + WholeNumber(at)});
    const GateLines gated = Gated(dialect.Name, block);
    ASSERT_EQ(gated.Lines.size(), 20U) << dialect.Name;
    EXPECT_EQ(gated.Lines.back(), "QX7AB>ZEPR,qAR,QX7KB:no. 19\r\n");
    EXPECT_EQ(gated.Why, NotGated::Nothing);
    EXPECT_TRUE(gated.Rest.empty());
  }
}

TEST(GateLines, ARemainderOfTenCharactersIsNoFrame) {
  for (const Dialect& dialect : kDialects) {
    const std::string frame = dialect.Text({});
    const std::string ending = dialect.Name == std::string("AGW") ? "\r\r" : "\r\n";
    // Ten behind the data, two of them its end.
    ExpectEnded(dialect.Name, frame + "12345678", NotGated::Nothing,
                {"QX7AB>ZEPR,qAR,QX7KB:!tst\r\n"});
    // Eleven, but nine without the line ends.
    ExpectEnded(dialect.Name, frame + "123456789", NotGated::Nothing,
                {"QX7AB>ZEPR,qAR,QX7KB:!tst\r\n"});
    ExpectEnded(dialect.Name, frame + "\r\n\n\r1234567890", NotGated::Nothing,
                {"QX7AB>ZEPR,qAR,QX7KB:!tst\r\n"});
    ExpectEnded(dialect.Name, frame + "12345678901", NotGated::NoFrame,
                {"QX7AB>ZEPR,qAR,QX7KB:!tst\r\n"});
    ExpectEnded(dialect.Name, frame + std::string(40, '\n'), NotGated::Nothing,
                {"QX7AB>ZEPR,qAR,QX7KB:!tst\r\n"});
  }
}

TEST(GateLines, TheBytesOfTheDataAreThoseHeard) {
  std::string all;
  for (int code = 0; code < 256; ++code) {
    if (code != '\r' && code != '\n') all += Chr(code);
  }
  for (const Dialect& dialect : kDialects) {
    for (const std::string& data :
         {all, std::string("trailing   "), std::string("\x1D\x1E\x1F\x7F`x"),
          std::string("\0\0", 2), std::string("ends\n"), std::string(" ")}) {
      const GateLines gated = Gated(dialect.Name, dialect.Text({.Data = data}));
      EXPECT_EQ(gated.Lines, Lines{"QX7AB>ZEPR,qAR,QX7KB:" + data + "\r\n"}) << dialect.Name;
    }
    EXPECT_EQ(Gated(dialect.Name, dialect.Text({.Data = ""})).Lines,
              Lines{"QX7AB>ZEPR,qAR,QX7KB:\r\n"})
        << dialect.Name;
  }
}

// Behind its first line end the server would read a packet that nobody has sent.
TEST(GateLines, DataOfSeveralLinesStays) {
  for (const char* data :
       {"one\nN0CALL>ZEPR,TCPIP*:two", "one\rN0CALL>ZEPR,TCPIP*:two", "one\n\rtwo", "one\r\n"})
    ExpectEnded("AGW", EngineText({.Data = data}), NotGated::SeveralLines);
  ExpectEnded("PK-232", "QX7AB>ZEPR <UI>:\r\none\nN0CALL>ZEPR,TCPIP*:two\r\n",
              NotGated::SeveralLines);
  ExpectEnded("AGW", EngineText({.Data = "one\r\nN0CALL>ZEPR,TCPIP*:two"}), NotGated::SeveralLines);
  // Where line ends are the form's own, the data ends there.
  ExpectEnded("PK-232", Pk232Text({.Data = "one\r\ntwo"}), NotGated::Nothing,
              {"QX7AB>ZEPR,qAR,QX7KB:one\r\n"});
}

TEST(GateLines, WordsOfTheDataAreNoMarkers) {
  EXPECT_EQ(Gated("AGW", EngineText({.Data = "car To Via x <UI >]"})).Lines,
            Lines{"QX7AB>ZEPR,qAR,QX7KB:car To Via x <UI >]\r\n"});
  const Lines scs{"QX7AB>ZEPR,qAR,QX7KB:x to y via z ctl UI pid F0\r\n"};
  EXPECT_EQ(Gated("SCS TNC", TncText({.Data = "x to y via z ctl UI pid F0"})).Lines, scs);
  EXPECT_EQ(Gated("SCS PTC", PtcText({.Data = "x to y via z ctl UI pid F0"})).Lines, scs);
  EXPECT_EQ(Gated("PK-232", Pk232Text({.Data = "A>B <UI>:"})).Lines,
            Lines{"QX7AB>ZEPR,qAR,QX7KB:A>B <UI>:\r\n"});
}

TEST(GateLines, MarkersAreKnownInAnyCase) {
  EXPECT_EQ(Gated("AGW", "1:FM QX7AB TO ZEPR VIA A <ui >[1]\r!tst\r\r").Lines,
            Lines{"QX7AB>ZEPR,A,qAR,QX7KB:!tst\r\n"});
  EXPECT_EQ(Gated("SCS TNC", "FM QX7AB TO ZEPR VIA A CTL ui PID f0\r\n!tst\r\n").Lines,
            Lines{"QX7AB>ZEPR,A,qAR,QX7KB:!tst\r\n"});
}

TEST(GateLines, AMissingPartEndsTheBlock) {
  const struct {
    const char* Dialect;
    std::string Block;
  } kRows[] = {
      {"AGW", "a plain line of text\r\r"},
      {"AGW", "1:Fm QX7AB ZEPR <UI >[12:30:15]\r!tst\r\r"},       // no " To "
      {"AGW", "1:Fm QX7AB To ZEPR <SABM >[12:30:15]\r!tst\r\r"},  // no " <UI"
      {"AGW", "1:Fm QX7AB To ZEPR <UI >[12:30:15\r!tst\r\r"},     // no bracket
      {"AGW", "1:Fm QX7AB To ZEPR <UI >[12:30:15]\r!tst\r"},      // no pair
      {"AGW", "1:Fm QX7AB To ZEPR <UI >[12:30:15] !tst"},         // one line
      {"AGW", "1:Fm  To ZEPR <UI >[12:30:15]\r!tst\r\r"},         // no sender
      {"AGW", "1:Fm QX7AB To  <UI >[12:30:15]\r!tst\r\r"},        // no destination
      {"AGW", "QX7AB To ZEPR <UI >[12:30:15]\r!tst\r\r"},         // no mark
      {"PK-232", "a plain line of text\r\n"},
      {"PK-232", "QX7AB>ZEPR<UI>:\r\n!tst\r\n"},   // no blank
      {"PK-232", "QX7AB*ZEPR <UI>:\r\n!tst\r\n"},  // no ">" but that of the marker
      {"PK-232", "QX7AB*>ZEPR <UI>:\r\n!tst"},     // no end
      {"PK-232", "QX7AB*>ZEPR <UI>:"},             // no data
      {"PK-232", "QX7AB*>ZEPR <I>:\r\n!tst\r\n"},  // numbered
      {"PK-232", "QX7AB*>ZEPR <UI>\r\n!tst\r\n"},  // no colon
      {"PK-232", ">ZEPR <UI>:\r\n!tst\r\n"},
      {"PK-232", "half a line\r\nQX7AB*>ZEPR <UI>:\r\n!tst\r\n"},
      {"SCS TNC", "a plain line of text\r\n"},
      {"SCS TNC", "fm QX7AB ZEPR ctl UI pid F0\r\n!tst\r\n"},
      {"SCS TNC", "fm QX7AB to ZEPR ctl I00 pid F0\r\n!tst\r\n"},
      {"SCS TNC", "fm QX7AB to ZEPR ctl UI pid CF\r\n!tst\r\n"},
      {"SCS TNC", "fm QX7AB to ZEPR ctl UI pid F0 \r\n!tst\r\n"},
      {"SCS TNC", "fm QX7AB to ZEPR ctl UI pid F0\r\n!tst"},
      {"SCS TNC", "fm QX7AB to ZEPR ctl UI pid F0"},
      {"SCS TNC", "fm  to ZEPR ctl UI pid F0\r\n!tst\r\n"},
      {"SCS PTC", "fm QX7AB to ZEPR ctl UI pid F0\r\n!tst\r\n"},  // no channel before it
      {"SCS PTC", "1:fm QX7AB to ZEPR ctl UI pid CF\r\n!tst\r\n"},
      {"SCS PTC", "a plain line of text\r\n"},
  };
  for (const auto& row : kRows)
    ExpectEnded(row.Dialect, row.Block, NotGated::NoFrame);
}

// The header of one frame is not joined to the data of the next.
TEST(GateLines, NoLineIsMadeOfTwoFrames) {
  ExpectEnded("SCS TNC", "fm QX1AB to ZEPR ctl SABM\r\nfm QX7AB to ZEPR ctl UI pid F0\r\n!tst\r\n",
              NotGated::NoFrame);
  ExpectEnded("AGW", "1:Fm QX1AB To ZEPR <SABM >\r1:Fm QX7AB To ZEPR <UI >[12:30:15]\r!tst\r\r",
              NotGated::NoFrame);
  ExpectEnded("PK-232", "QX1AB>ZEPR <SABM>:\r\nQX7AB*>ZEPR <UI>:\r\n!tst\r\n", NotGated::NoFrame);
}

TEST(GateLines, OnlyTheScsTncWantsItsFrameNearTheFront) {
  const std::string frame = TncText({});
  for (const char* front : {"", "\n", "\r\n", "1:", "1234"})
    EXPECT_EQ(Gated("SCS TNC", front + frame).Lines.size(), 1U) << front;
  ExpectEnded("SCS TNC", "12345" + frame, NotGated::NoFrame);
  EXPECT_EQ(Gated("SCS PTC", "some words before 1:" + frame).Lines.size(), 1U);
}

TEST(GateLines, AnEmptyBlockIsNoFrame) {
  for (const Dialect& dialect : kDialects)
    ExpectEnded(dialect.Name, "", NotGated::NoFrame);
}

}  // namespace
}  // namespace zepril
