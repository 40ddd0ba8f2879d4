// Reads lines KEY=value, a row of the table for each service.
#include "config/services_file.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/text_fields.h"
#include "platform/code_page.h"

namespace zepril {
namespace {

constexpr std::size_t kLongestLine = 1000;
constexpr int kMostLines = 1000;

struct ServiceRow {
  std::string_view Key;
  std::string ServicesState::*Host;
};

constexpr std::array<ServiceRow, 8> kServices{{
    {"APRSCGISERVICE", &ServicesState::AprsCgiService},
    {"APRSRESTSERVICE", &ServicesState::AprsRestService},
    {"IONOPAGEA", &ServicesState::IonoPageA},
    {"IONOPAGEB", &ServicesState::IonoPageB},
    {"GOOGLEMAPS", &ServicesState::GoogleMaps},
    {"MINKARTA", &ServicesState::MinKarta},
    {"NORGESKART", &ServicesState::Norgeskart},
    {"KARTTAPAIKKA", &ServicesState::Karttapaikka},
}};

bool IsPlain(std::string_view value) {
  return value.find(' ') == std::string_view::npos &&
         std::none_of(value.begin(), value.end(), IsControlCharacter);
}

// "aprs.example/" gives "http://aprs.example"; empty for what is none.
std::string HostOf(std::string_view value) {
  constexpr std::string_view kBehindScheme = "://";
  const std::size_t found = value.find(kBehindScheme);
  const bool has_scheme = found != std::string_view::npos;
  const std::string scheme = has_scheme ? Lower(value.substr(0, found)) : "http";
  std::string_view host = has_scheme ? value.substr(found + kBehindScheme.size()) : value;
  while (host.ends_with('/'))
    host.remove_suffix(1);
  const bool web = scheme == "http" || scheme == "https";
  if (host.empty() || !web || !IsPlain(host)) return {};
  return scheme + std::string(kBehindScheme) + std::string(host);
}

void TakeLine(std::string_view line, ServicesState& services) {
  const std::size_t equals = line.find('=');
  if (Trim(line).starts_with('#') || equals == std::string_view::npos) return;
  const std::string_view key = Trim(line.substr(0, equals));
  for (const ServiceRow& row : kServices) {
    if (EqualFolded(key, row.Key)) services.*row.Host = HostOf(Trim(line.substr(equals + 1)));
  }
}

}  // namespace

std::string ServicesPath(const std::string& program_folder) {
  return program_folder + "\\SERVICES.TXT";
}

ServicesState ReadServicesFile(const Files& files, const std::string& program_folder) {
  ServicesState services;
  int lines = 0;
  files.ReadLines(ServicesPath(program_folder), [&](std::string_view line) {
    if (line.size() <= kLongestLine) TakeLine(line, services);
    return ++lines < kMostLines;
  });
  return services;
}

}  // namespace zepril
