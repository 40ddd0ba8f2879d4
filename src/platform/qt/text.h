// The one place where the program's text becomes Unicode and comes back.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace zepril {

QString ToQt(std::string_view code_page_text);
std::string FromQt(const QString& text);

}  // namespace zepril
