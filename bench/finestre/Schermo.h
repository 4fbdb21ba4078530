// What a display shows of a program that starts.
#pragma once

#include <sys/types.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>

namespace parvik::bench {

/// Watches the windows that come up on the display of $DISPLAY. Throws when there is none, or when it does
/// not tell what is painted.
class Schermo {
 public:
  Schermo();

  /// Waits until more than half of a new window is painted, `millisecondi` at the most; whether it was.
  bool AttendiDipinta(int millisecondi);
  /// Waits until the windows that were seen are gone.
  void AttendiVuoto(int millisecondi);

 private:
  struct Vista {
    std::int64_t Area = 0;
    std::int64_t Dipinta = 0;
    bool Mostrata = false;
  };
  struct Chiudi {
    void operator()(xcb_connection_t* schermo) const { xcb_disconnect(schermo); }
  };

  /// True when the event is the one that paints a window for the greater part.
  bool Tratta(const xcb_generic_event_t& evento);
  bool Aspetta(int millisecondi);
  void Nata(const xcb_create_notify_event_t& evento);
  bool Dipinta(const xcb_damage_notify_event_t& evento);

  std::unique_ptr<xcb_connection_t, Chiudi> schermo_;
  std::uint8_t eventoDanno_ = 0;
  std::unordered_map<xcb_window_t, Vista> finestre_;
};

}  // namespace parvik::bench
