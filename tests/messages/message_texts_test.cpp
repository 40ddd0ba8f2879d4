// Messages as text: what is read from a received one, lines, and what is sent.
#include "messages/message_texts.h"

#include <gtest/gtest.h>

#include <string>

namespace zepril {
namespace {

IdentityState Station() {
  IdentityState identity;
  identity.MyCall = "QX7KB";
  identity.MyCallFull = "QX7KB-10";
  return identity;
}

TEST(Addressee, StandsInColumns2To10InAnyCase) {
  EXPECT_EQ(AddresseeOf(":qx7kb-10 :Hello"), "QX7KB-10");
  EXPECT_EQ(AddresseeOf(":         :Hello"), "");
  EXPECT_EQ(AddresseeOf(":"), "");
}

TEST(Addressee, IsTheStationWithAndWithoutItsSsid) {
  for (const char* call : {"QX7KB", "qx7kb", "Qx7Kb-10", " QX7KB-10 "})
    EXPECT_TRUE(IsOwnCall(call, Station())) << call;
  for (const char* call : {"QX7KB-1", "QX7K", "", "   ", "QX7KB-100"})
    EXPECT_FALSE(IsOwnCall(call, Station())) << call;
}

TEST(Addressee, IsNobodyForAStationWithoutACall) {
  EXPECT_FALSE(IsOwnCall("", IdentityState()));
}

TEST(Acknowledgement, BeginsWithSmallLetters) {
  EXPECT_TRUE(BeginsLikeAck("ack07"));
  EXPECT_TRUE(BeginsLikeAck("mok07"));
  EXPECT_TRUE(BeginsLikeAck("acknowledged"));
  EXPECT_FALSE(BeginsLikeAck("ACK07"));
  EXPECT_FALSE(BeginsLikeAck(" ack07"));
}

TEST(Acknowledgement, NamesFiveColumns) {
  EXPECT_EQ(AckedNumber(":QX7KB    :ack07"), "07");
  EXPECT_EQ(AckedNumber(":QX7KB    :ack 7  "), "7");
  EXPECT_EQ(AckedNumber(":QX7KB    :ack1234567"), "12345");
  EXPECT_EQ(AckedNumber(":QX7KB    :ack"), "");
}

TEST(Number, IsAllBehindTheFirstBrace) {
  EXPECT_EQ(NumberIn("Hello{07"), "07");
  EXPECT_EQ(NumberIn("Hello{07}"), "07}");
  EXPECT_EQ(NumberIn("a{b{07 "), "b{07");
  EXPECT_EQ(NumberIn("Hello{"), "");
  EXPECT_FALSE(NumberIn("Hello"));
}

TEST(Number, IsAcknowledgedAsFarAsALineShowsIt) {
  EXPECT_EQ(NumberToAcknowledge("N0CALL", ":QX7KB    :Hello{07"), "07");
  const std::string longest = ":QX7KB    :{" + std::string(500, '9');
  EXPECT_EQ(NumberToAcknowledge("N0CALL", longest), std::string(79, '9'));
  EXPECT_FALSE(NumberToAcknowledge("N0CALL", ":QX7KB    :" + std::string(200, 'x') + "{07"));
  EXPECT_FALSE(NumberToAcknowledge(std::string(300, 'N'), ":QX7KB    :Hello{07"));
}

TEST(Ping, IsTheWholeText) {
  EXPECT_TRUE(IsPing("?APRST"));
  EXPECT_TRUE(IsPing(" ?aprst  "));
  EXPECT_FALSE(IsPing("?APRST{07"));
  EXPECT_FALSE(IsPing("?APRSP"));
}

TEST(Ping, MayBeAnsweredByAnythingThatLooksLikeAPath) {
  for (const char* info : {":QX7KB    :path = A", ":QX7KB    :a>b", ":QX7KB    :***"})
    EXPECT_TRUE(MayAnswerPing(info)) << info;
  EXPECT_FALSE(MayAnswerPing(":QX7KB    :Hello"));
}

TEST(Ping, IsAnsweredWithThePathOfItsHeader) {
  EXPECT_EQ(PingAnswerText("N0CALL", "N0CALL>WIDE1-1*>APRS <UI>", "APRS"),
            ":N0CALL   :PATH = N0CALL VIA WIDE1-1* TO APRS");
  EXPECT_EQ(PingAnswerText("N0CALL", "N0CALL>A>B*>APRS <UI>", "APRS"),
            ":N0CALL   :PATH = N0CALL VIA A>B* TO APRS");
  EXPECT_EQ(PingAnswerText("N0CALL", "N0CALL>APRS1*>APRS <UI>", "APRS"),
            ":N0CALL   :PATH = N0CALL VIA APRS1* TO APRS");
  EXPECT_EQ(PingAnswerText("N0CALL", "N0CALL*>APRS <UI>", "APRS"),
            ":N0CALL   :PATH = N0CALL VIA  TO APRS");
  // One that a gateway has packed names its destination first.
  EXPECT_EQ(PingAnswerText("N0CALL", "N0CALL>APRS,TCPIP,GATE1*", "APRS"),
            ":N0CALL   :PATH = N0CALL VIA  TO APRS");
  EXPECT_EQ(PingAnswerText("N0CALL", "", ""), ":N0CALL   :PATH = N0CALL VIA  TO ");
}

TEST(ChatLineText, HasTheSenderLeftOrTheOwnCallRight) {
  EXPECT_EQ(ReceivedLine("N0CALL", ":QX7KB    :Hello{07"), "N0CALL   :QX7KB    :Hello{07");
  EXPECT_EQ(OwnLine("QX7KB-10", ":AB1CD    :Hello{07"), " QX7KB-10:AB1CD    :Hello{07");
  EXPECT_EQ(OwnLine("QX7KB", ":AB1CD    :Hello{07"), "    QX7KB:AB1CD    :Hello{07");
}

TEST(ChatLineText, HoldsAHundredCharacters) {
  const std::string endless(500, 'x');
  EXPECT_EQ(ReceivedLine("N0CALL", ":QX7KB    :" + endless).size(), 100U);
  EXPECT_EQ(ReceivedLine(endless, ":QX7KB    :Hello").size(), 100U);
  EXPECT_EQ(OwnLine("QX7KB", endless).size(), 100U);
}

TEST(ChatLineText, TellsWhoseItIsAndWhatIsSent) {
  EXPECT_EQ(CallOfLine(" QX7KB-10:AB1CD    :Hello{07"), "QX7KB-10");
  EXPECT_EQ(CallOfLine("N0CALL   :QX7KB    :Hello{07"), "N0CALL");
  EXPECT_EQ(FrameTextOfLine(" QX7KB-10:AB1CD    :Hello{07 "), ":AB1CD    :Hello{07");
}

TEST(ChatLineText, IsAnAnswerToSomebody) {
  const std::string line = " QX7KB-10:N0CALL   :AA: busy{07";
  EXPECT_TRUE(IsAnswerTo(line, "QX7KB-10", "N0CALL", "AA: busy"));
  EXPECT_TRUE(IsAnswerTo(line, "QX7KB-10", "N0CALL", ""));
  EXPECT_FALSE(IsAnswerTo(line, "QX7KB-10", "N0CALL-1", "AA: busy"));
  EXPECT_FALSE(IsAnswerTo(line, "QX7KB", "N0CALL", "AA: busy"));
  EXPECT_FALSE(IsAnswerTo(line, "QX7KB-10", "N0CALL", "AA: away"));
}

TEST(ChatLogLine, StaysOneLine) {
  EXPECT_EQ(LogLine("20240115 1234", " QX7KB-10:AB1CD    :Hello{07"),
            "20240115 1234  QX7KB-10:AB1CD    :Hello{07");
  EXPECT_EQ(LogLine("20240115<1234", "A\r\nB\tC"), "20240115<1234  A  B C");
}

TEST(TypedMessageText, CarriesItsNumber) {
  const TypedMessage message = MessageToSend(" ab1cd ", "  Hello ", 7);
  EXPECT_EQ(message.FrameText, ":AB1CD    :Hello{07");
  EXPECT_FALSE(message.IsQuery);
  EXPECT_FALSE(message.WasCut);
  EXPECT_EQ(MessageToSend("AB1CD", "Hello", 0).FrameText, ":AB1CD    :Hello{00");
}

TEST(TypedMessageText, OfAQueryCarriesNone) {
  EXPECT_EQ(MessageToSend("ab1cd", "?aprst", 7).FrameText, ":AB1CD    :?APRST");
  EXPECT_EQ(MessageToSend("ab1cd", "?Aprst", 7).FrameText, ":AB1CD    :?Aprst");
  EXPECT_EQ(MessageToSend("ab1cd", "ask ?aprs", 7).FrameText, ":AB1CD    :ask ?aprs");
  EXPECT_EQ(MessageToSend("ab1cd", "?aprs and more", 7).FrameText, ":AB1CD    :?APRS AND MORE");
  EXPECT_TRUE(MessageToSend("ab1cd", "ask ?aprs", 7).IsQuery);
}

TEST(TypedMessageText, DoesNotCutALongCall) {
  EXPECT_EQ(MessageToSend("DL1ABCD-15", "Hello", 7).FrameText, ":DL1ABCD-15:Hello{07");
}

TEST(TypedMessageText, IsCutSoThatItsNumberFitsIntoTheLine) {
  const TypedMessage message = MessageToSend("AB1CD", std::string(200, 'x'), 7);
  EXPECT_TRUE(message.WasCut);
  const std::string line = OwnLine("QX7KB-10", message.FrameText);
  EXPECT_EQ(line.size(), 100U);
  EXPECT_TRUE(line.ends_with("x{07"));
  EXPECT_FALSE(MessageToSend("AB1CD", std::string(77, 'x'), 7).WasCut);
  EXPECT_TRUE(MessageToSend(std::string(200, 'C'), "Hello", 7).FrameText.empty());
}

TEST(TypedMessageText, HoldsNoControlCharacters) {
  EXPECT_EQ(MessageToSend("AB1CD", "a\x1B%ZL\rb", 7).FrameText, ":AB1CD    :a %ZL b{07");
}

TEST(AutoAnswer, HasItsMarkOnce) {
  EXPECT_EQ(AutoAnswerOf("busy"), "AA: busy");
  EXPECT_EQ(AutoAnswerOf("AA: x"), "AA: x");
  EXPECT_EQ(AutoAnswerOf(""), "AA: ");
}

TEST(AutoAnswer, IsRecognisedAsItWasSent) {
  EXPECT_EQ(TextAsSent("N0CALL", "busy"), "AA: busy");
  const std::string endless(200, 'x');
  const std::string line =
      OwnLine("QX7KB-10", MessageToSend("N0CALL", AutoAnswerOf(endless), 42).FrameText);
  EXPECT_TRUE(IsAnswerTo(line, "QX7KB-10", "N0CALL", TextAsSent("N0CALL", endless)));
  const std::string query = MessageToSend("N0CALL", AutoAnswerOf("?APRS"), 42).FrameText;
  EXPECT_TRUE(
      IsAnswerTo(OwnLine("QX7KB-10", query), "QX7KB-10", "N0CALL", TextAsSent("N0CALL", "?APRS")));
}

TEST(WebMessage, IsAddressedWithNothingEscaped) {
  EXPECT_EQ(WebMessageUrl("http://aprs.example", "QX7KB-10", ":AB1CD    :Hello you{07"),
            "http://aprs.example/cgi-bin/sendmsg.cgi?fromcall=QX7KB-10&tocall=AB1CD"
            "&msg=Hello you{07");
}

TEST(WebMessage, AloneCarriesTheReplyToAStationOnTheInternet) {
  EXPECT_TRUE(IsForWebOnly(":AB1CD    :mok07"));
  EXPECT_FALSE(IsForWebOnly(":AB1CD    :ack07"));
  EXPECT_FALSE(IsForWebOnly(":AB1CD    :MOK07"));
}

TEST(MessageTexts, TakeEveryByteValue) {
  for (int code = 0; code < 256; ++code) {
    const std::string text(40, static_cast<char>(code));
    const std::string info = ":QX7KB    :" + text + "{" + text;
    EXPECT_LE(ReceivedLine(text, info).size(), 100U);
    EXPECT_LE(MessageToSend(text, text, 7).FrameText.size(), 100U);
    PingAnswerText(text, info, text);
    TextAsSent(text, text);
  }
}

}  // namespace
}  // namespace zepril
