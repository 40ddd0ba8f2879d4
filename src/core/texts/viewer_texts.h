// What is said of outside viewers.
#pragma once

#include "core/texts/text.h"

namespace zepril::viewer_texts {

// %1: the service.
inline constexpr Text kNoHost{"%1 has no address in SERVICES.TXT"};
inline constexpr Text kGoogleMaps{"Google Maps"};
inline constexpr Text kMinKarta{"Min Karta"};
inline constexpr Text kNorgeskart{"Norgeskart"};
inline constexpr Text kKarttapaikka{"Karttapaikka"};
// %1: the file, %2: why.
inline constexpr Text kGlobeFileUnwritten{"%1 can't be written: %2"};
inline constexpr Text kNoGlobePlace{"no place on the clipboard: copy it in the globe first"};
inline constexpr Text kNoMapPlace{"no place on the clipboard: copy the page's address first"};

}  // namespace zepril::viewer_texts
