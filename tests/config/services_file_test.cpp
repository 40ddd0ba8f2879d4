// The hosts of the web services: lines that count, lines that don't, and the file that is shipped.
#include "config/services_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "tests/doubles/memory_files.h"

namespace zepril {
namespace {

std::string ServiceIn(const std::string& text) {
  MemoryFiles files;
  files.Contents[R"(C:\Z\SERVICES.TXT)"] = text;
  return ReadServicesFile(files, R"(C:\Z)").AprsCgiService;
}

TEST(ServicesFile, AHostIsTakenWithItsScheme) {
  EXPECT_EQ(ServiceIn("APRSCGISERVICE=https://aprs.example\r\n"), "https://aprs.example");
  EXPECT_EQ(ServiceIn("  AprsCgiService = https://aprs.example:8443/ \n"),
            "https://aprs.example:8443");
  EXPECT_EQ(ServiceIn("APRSCGISERVICE=aprs.example"), "http://aprs.example");
}

TEST(ServicesFile, WithoutAHostAServiceIsOff) {
  EXPECT_EQ(ReadServicesFile(MemoryFiles(), R"(C:\Z)").AprsCgiService, "");
  for (const char* text :
       {"", "APRSCGISERVICE=", "APRSCGISERVICE=   ", "# APRSCGISERVICE=a.example", "APRSCGISERVICE",
        "OTHER=a.example", "APRSCGISERVICE=a b", "APRSCGISERVICE=file:///etc/passwd",
        "APRSCGISERVICE=http://", "APRSCGISERVICE=///", "APRSCGISERVICE=a\x01.example"})
    EXPECT_EQ(ServiceIn(text), "") << text;
}

TEST(ServicesFile, TheLastLineCounts) {
  EXPECT_EQ(ServiceIn("APRSCGISERVICE=a.example\nAPRSCGISERVICE=b.example\n"), "http://b.example");
  EXPECT_EQ(ServiceIn("APRSCGISERVICE=a.example\nAPRSCGISERVICE=\n"), "");
}

TEST(ServicesFile, NeitherLongLinesNorManyAreBelieved) {
  EXPECT_EQ(ServiceIn("APRSCGISERVICE=" + std::string(2000, 'a') + "\nX=1\n"), "");
  std::string many;
  for (int line = 0; line < 2000; ++line)
    many += "X=1\n";
  EXPECT_EQ(ServiceIn(many + "APRSCGISERVICE=a.example\n"), "");
}

TEST(ServicesFile, EachServiceHasItsKey) {
  MemoryFiles files;
  files.Contents[R"(C:\Z\SERVICES.TXT)"] =
      "APRSCGISERVICE=a.example\nAPRSRESTSERVICE=b.example\n"
      "IONOPAGEA=c.example/magnetogram/index.html\nIONOPAGEB=https://d.example/text/sgas.txt\n"
      "GOOGLEMAPS=e.example\nMINKARTA=f.example\nNORGESKART=g.example\nKARTTAPAIKKA=h.example\n";
  const ServicesState services = ReadServicesFile(files, R"(C:\Z)");
  EXPECT_EQ(services.AprsCgiService, "http://a.example");
  EXPECT_EQ(services.AprsRestService, "http://b.example");
  EXPECT_EQ(services.IonoPageA, "http://c.example/magnetogram/index.html");
  EXPECT_EQ(services.IonoPageB, "https://d.example/text/sgas.txt");
  EXPECT_EQ(services.GoogleMaps, "http://e.example");
  EXPECT_EQ(services.MinKarta, "http://f.example");
  EXPECT_EQ(services.Norgeskart, "http://g.example");
  EXPECT_EQ(services.Karttapaikka, "http://h.example");
}

// Only what is known to answer has an address.
TEST(ServicesFile, TheShippedOneIsRead) {
  std::ifstream file(std::string(ZEPRIL_SOURCE_DIR) + "/data/SERVICES.TXT", std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(file)), {});
  EXPECT_NE(text.find("\r\nAPRSCGISERVICE="), std::string::npos);
  EXPECT_EQ(ServiceIn(text), "");
  MemoryFiles files;
  files.Contents[R"(C:\Z\SERVICES.TXT)"] = text;
  const ServicesState services = ReadServicesFile(files, R"(C:\Z)");
  EXPECT_EQ(services.AprsRestService, "");
  EXPECT_EQ(services.IonoPageA, "");
  EXPECT_EQ(services.IonoPageB, "https://services.swpc.noaa.gov/text/sgas.txt");
  for (const std::string& host :
       {services.GoogleMaps, services.MinKarta, services.Norgeskart, services.Karttapaikka})
    EXPECT_TRUE(host.starts_with("https://")) << host;
}

}  // namespace
}  // namespace zepril
