#include "finestre/Schermo.h"

#include <poll.h>

#include <chrono>
#include <cstdlib>
#include <stdexcept>

namespace parvik::bench {
namespace {

using Orologio = std::chrono::steady_clock;

struct Libera {
  void operator()(void* dati) const { std::free(dati); }
};
using Evento = std::unique_ptr<xcb_generic_event_t, Libera>;

constexpr std::uint8_t SenzaProvenienza = 0x7F;

int Restano(Orologio::time_point fine) {
  const auto resto = std::chrono::duration_cast<std::chrono::milliseconds>(fine - Orologio::now());
  return static_cast<int>(std::max<std::chrono::milliseconds::rep>(0, resto.count()));
}

}  // namespace

Schermo::Schermo() : schermo_(xcb_connect(nullptr, nullptr)) {
  xcb_connection_t* schermo = schermo_.get();
  if (xcb_connection_has_error(schermo) != 0) throw std::runtime_error("there is no display");
  const xcb_query_extension_reply_t* danni = xcb_get_extension_data(schermo, &xcb_damage_id);
  if (danni == nullptr || danni->present == 0) throw std::runtime_error("the display does not tell damage");
  eventoDanno_ = danni->first_event;
  const std::unique_ptr<xcb_damage_query_version_reply_t, Libera> versione(xcb_damage_query_version_reply(
      schermo, xcb_damage_query_version(schermo, XCB_DAMAGE_MAJOR_VERSION, XCB_DAMAGE_MINOR_VERSION),
      nullptr));
  const xcb_window_t radice = xcb_setup_roots_iterator(xcb_get_setup(schermo)).data->root;
  const std::uint32_t maschera = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(schermo, radice, XCB_CW_EVENT_MASK, &maschera);
  xcb_flush(schermo);
}

void Schermo::Nata(const xcb_create_notify_event_t& evento) {
  if (evento.override_redirect != 0 || evento.width < 2) return;  // no window of a person's
  finestre_[evento.window].Area = std::int64_t{evento.width} * evento.height;
  xcb_damage_create(schermo_.get(), xcb_generate_id(schermo_.get()), evento.window,
                    XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
  xcb_flush(schermo_.get());
}

bool Schermo::Dipinta(const xcb_damage_notify_event_t& evento) {
  const auto vista = finestre_.find(evento.drawable);
  if (vista == finestre_.end() || !vista->second.Mostrata) return false;
  vista->second.Dipinta += std::int64_t{evento.area.width} * evento.area.height;
  return 2 * vista->second.Dipinta > vista->second.Area;
}

bool Schermo::Tratta(const xcb_generic_event_t& evento) {
  const std::uint8_t genere = evento.response_type & SenzaProvenienza;
  if (genere == eventoDanno_) return Dipinta(reinterpret_cast<const xcb_damage_notify_event_t&>(evento));
  if (genere == XCB_CREATE_NOTIFY) Nata(reinterpret_cast<const xcb_create_notify_event_t&>(evento));
  if (genere == XCB_MAP_NOTIFY) {
    const auto vista = finestre_.find(reinterpret_cast<const xcb_map_notify_event_t&>(evento).window);
    if (vista != finestre_.end()) vista->second.Mostrata = true;
  }
  if (genere == XCB_CONFIGURE_NOTIFY) {
    const auto& nuova = reinterpret_cast<const xcb_configure_notify_event_t&>(evento);
    const auto vista = finestre_.find(nuova.window);
    if (vista != finestre_.end()) vista->second.Area = std::int64_t{nuova.width} * nuova.height;
  }
  if (genere == XCB_DESTROY_NOTIFY)
    finestre_.erase(reinterpret_cast<const xcb_destroy_notify_event_t&>(evento).window);
  return false;
}

bool Schermo::Aspetta(int millisecondi) {
  pollfd presa = {.fd = xcb_get_file_descriptor(schermo_.get()), .events = POLLIN, .revents = 0};
  return ::poll(&presa, 1, millisecondi) > 0;
}

bool Schermo::AttendiDipinta(int millisecondi) {
  const auto fine = Orologio::now() + std::chrono::milliseconds(millisecondi);
  for (;;) {
    while (const Evento evento{xcb_poll_for_event(schermo_.get())}) {
      if (Tratta(*evento)) return true;
    }
    const int restano = Restano(fine);
    if (restano == 0 || !Aspetta(restano)) return false;
  }
}

void Schermo::AttendiVuoto(int millisecondi) {
  const auto fine = Orologio::now() + std::chrono::milliseconds(millisecondi);
  for (;;) {
    while (const Evento evento{xcb_poll_for_event(schermo_.get())}) Tratta(*evento);
    if (finestre_.empty()) return;
    const int restano = Restano(fine);
    if (restano == 0 || !Aspetta(restano)) return finestre_.clear();
  }
}

}  // namespace parvik::bench
