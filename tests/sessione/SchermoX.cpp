#include "SchermoX.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cstdio>
#include <cstdlib>
#include <span>
#include <utility>

namespace parvik::prova {
namespace {

std::string Titolo(Display* schermo, Window finestra) {
  const Atom nome = XInternAtom(schermo, "_NET_WM_NAME", False);
  Atom tipo = None;
  int formato = 0;
  unsigned long quanti = 0;
  unsigned long resto = 0;
  unsigned char* byte = nullptr;
  constexpr long Massimo = 256;
  if (XGetWindowProperty(schermo, finestra, nome, 0, Massimo, False, AnyPropertyType, &tipo, &formato,
                         &quanti, &resto, &byte) != Success ||
      byte == nullptr)
    return {};
  std::string titolo(byte, byte + quanti);
  XFree(byte);
  return titolo;
}

/// Windows come and go while they are looked at.
int Trascura(Display* /*schermo*/, XErrorEvent* /*errore*/) {
  return 0;
}

}  // namespace

struct SchermoX::Connessione {
  Display* Schermo = nullptr;

  struct Trovata {
    Window Quale = None;
    Misura Quanto;
  };

  /// The last one, and how many.
  std::pair<std::optional<Trovata>, int> CercaTutte(const std::string& titolo) const {
    Window radice = None;
    Window padre = None;
    Window* figlie = nullptr;
    unsigned quante = 0;
    if (XQueryTree(Schermo, DefaultRootWindow(Schermo), &radice, &padre, &figlie, &quante) == 0) return {};
    std::optional<Trovata> trovata;
    int trovate = 0;
    for (const Window figlia : std::span(figlie, quante)) {
      XWindowAttributes stato = {};
      if (XGetWindowAttributes(Schermo, figlia, &stato) == 0 || stato.map_state != IsViewable) continue;
      if (Titolo(Schermo, figlia) != titolo) continue;
      trovata = {.Quale = figlia, .Quanto = {.Larghezza = stato.width, .Altezza = stato.height}};
      ++trovate;
    }
    if (figlie != nullptr) XFree(figlie);
    return {trovata, trovate};
  }
  std::optional<Trovata> Cerca(const std::string& titolo) const { return CercaTutte(titolo).first; }
};

SchermoX::SchermoX(const std::string& nome) : x_(std::make_unique<Connessione>()) {
  x_->Schermo = XOpenDisplay(nome.c_str());
  if (x_->Schermo == nullptr) {
    static_cast<void>(std::fprintf(stderr, "no connection to display %s\n", nome.c_str()));
    std::abort();
  }
  XSetErrorHandler(Trascura);
}

SchermoX::~SchermoX() {
  XCloseDisplay(x_->Schermo);
}

std::optional<SchermoX::Misura> SchermoX::Finestra(const std::string& titolo) {
  const auto trovata = x_->Cerca(titolo);
  if (!trovata) return {};
  return trovata->Quanto;
}

int SchermoX::Quante(const std::string& titolo) {
  return x_->CercaTutte(titolo).second;
}

void SchermoX::Premi(const std::string& titolo, const char* tasto, unsigned modificatori) {
  const auto trovata = x_->Cerca(titolo);
  if (!trovata) return;
  XSetInputFocus(x_->Schermo, trovata->Quale, RevertToParent, CurrentTime);
  Premi(tasto, modificatori);
}

void SchermoX::Premi(const char* tasto, unsigned modificatori) {
  Window finestra = None;
  int ritorno = 0;
  XGetInputFocus(x_->Schermo, &finestra, &ritorno);
  XKeyEvent evento = {};
  evento.display = x_->Schermo;
  evento.window = finestra;
  evento.root = DefaultRootWindow(x_->Schermo);
  evento.time = CurrentTime;
  evento.same_screen = True;
  evento.state = modificatori;
  evento.keycode = XKeysymToKeycode(x_->Schermo, XStringToKeysym(tasto));
  for (const int genere : {KeyPress, KeyRelease}) {
    evento.type = genere;
    XEvent qualsiasi = {};
    qualsiasi.xkey = evento;
    XSendEvent(x_->Schermo, finestra, True, genere == KeyPress ? KeyPressMask : KeyReleaseMask, &qualsiasi);
  }
  XFlush(x_->Schermo);
}

}  // namespace parvik::prova
