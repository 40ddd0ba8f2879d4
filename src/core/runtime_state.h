// The whole state of one running program. Only station/ and config/ include it; every other room
// takes the sections it works on.
#pragma once

#include "core/state/alarms.h"
#include "core/state/chat.h"
#include "core/state/followed_station.h"
#include "core/state/gps.h"
#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/map_view.h"
#include "core/state/places.h"
#include "core/state/radio.h"
#include "core/state/reception.h"
#include "core/state/services.h"
#include "core/state/settings.h"
#include "core/state/stores.h"
#include "core/state/transmission.h"

namespace zepril {

struct RuntimeState {
  IdentityState Identity;
  RadioState Radio;
  ReceptionState Reception;
  TransmissionState Transmission;
  StoresState Stores;
  FollowedStationState Followed;
  MapViewState Map;
  PlacesState Places;
  ChatState Chat;
  GpsState Gps;
  InternetState Internet;
  AlarmState Alarms;
  SettingsState Settings;
  ServicesState Services;
};

}  // namespace zepril
