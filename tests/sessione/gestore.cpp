// A session manager for one client: gestore COMMAND...
// Runs the command with SESSION_MANAGER set and ends with its status. The command writes what the manager is
// to do to descriptor 3, a letter each, and reads what the client did from descriptor 4, a line each.
#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace {

using TestoC = std::unique_ptr<char, decltype(&std::free)>;

constexpr int Comandi = 3;
constexpr int Fatti = 4;

/// What the callbacks of the library, which are plain functions, share.
struct Stato {
  SmsConn Cliente = nullptr;
  IceConn Linea = nullptr;
  bool Salva = false;   // the client was told to save itself and has not answered yet
  bool Uscita = false;  // the session is to end, if the client lets it
  char Sospesa = 0;     // what the command wants as soon as the client has answered
  std::array<int, 2> VersoGestore = {-1, -1};
  std::array<int, 2> VersoComando = {-1, -1};
};

Stato& Di(SmPointer dati) {
  return *static_cast<Stato*>(dati);
}

void Dillo(const Stato& stato, const char* fatto) {
  static_cast<void>(dprintf(stato.VersoComando[1], "%s\n", fatto));
}

/// Tells the client to save itself; it is told nothing else until it has.
void FaiSalvare(Stato& stato, int che, bool uscita, int domande) {
  stato.Salva = true;
  stato.Uscita = uscita;
  SmsSaveYourself(stato.Cliente, che, uscita ? True : False, domande, False);
}

/// A letter from the command: u ends the session and lets the client ask, s does not let it.
void Esegui(Stato& stato, char lettera) {
  if (stato.Cliente == nullptr) return Dillo(stato, "nessuno");
  if (stato.Salva) {
    stato.Sospesa = lettera;
    return;
  }
  FaiSalvare(stato, SmSaveBoth, true, lettera == 'u' ? SmInteractStyleAny : SmInteractStyleNone);
}

/// A new client is told to save itself at once, and may ask nothing.
Status Registra(SmsConn cliente, SmPointer dati, char* /*precedente*/) {
  Di(dati).Cliente = cliente;
  const TestoC nome(SmsGenerateClientID(cliente), &std::free);
  const Status registrato = SmsRegisterClientReply(cliente, nome.get());
  FaiSalvare(Di(dati), SmSaveLocal, false, SmInteractStyleNone);
  return registrato;
}

void ChiedeDiDomandare(SmsConn cliente, SmPointer dati, int /*genere*/) {
  Dillo(Di(dati), "domanda");
  SmsInteract(cliente);
}

void HaDomandato(SmsConn /*cliente*/, SmPointer dati, Bool annulla) {
  Dillo(Di(dati), annulla != False ? "annullata" : "risposto");
}

void HaSalvato(SmsConn cliente, SmPointer dati, Bool riuscito) {
  Stato& stato = Di(dati);
  stato.Salva = false;
  if (!stato.Uscita) {
    SmsSaveComplete(cliente);
  } else {
    Dillo(stato, riuscito != False ? "pronto" : "non pronto");
    SmsShutdownCancelled(cliente);  // so that there can be another time
  }
  if (stato.Sospesa != 0) Esegui(stato, std::exchange(stato.Sospesa, '\0'));
}

void Chiude(SmsConn cliente, SmPointer dati, int motivi, char** testi) {
  Stato& stato = Di(dati);
  SmFreeReasons(motivi, testi);
  SmsCleanUp(cliente);
  IceSetShutdownNegotiation(stato.Linea, False);
  IceCloseConnection(stato.Linea);
  stato.Linea = nullptr;
  stato.Cliente = nullptr;
}

void Proprieta(SmsConn /*cliente*/, SmPointer /*dati*/, int quante, SmProp** tutte) {
  for (int i = 0; i < quante; ++i) SmFreeProperty(tutte[i]);
  std::free(tutte);
}

Status NuovoCliente(SmsConn /*cliente*/, SmPointer dati, unsigned long* maschera, SmsCallbacks* risposte,
                    char** /*motivo*/) {
  *maschera = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
              SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
              SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask |
              SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
  *risposte = {};
  risposte->register_client = {Registra, dati};
  risposte->interact_request = {ChiedeDiDomandare, dati};
  risposte->interact_done = {HaDomandato, dati};
  risposte->save_yourself_request = {[](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {}, dati};
  risposte->save_yourself_phase2_request = {
      [](SmsConn cliente, SmPointer) { SmsSaveYourselfPhase2(cliente); }, dati};
  risposte->save_yourself_done = {HaSalvato, dati};
  risposte->close_connection = {Chiude, dati};
  risposte->set_properties = {Proprieta, dati};
  risposte->delete_properties = {
      [](SmsConn, SmPointer, int quante, char** nomi) { SmFreeReasons(quante, nomi); }, dati};
  risposte->get_properties = {[](SmsConn cliente, SmPointer) { SmsReturnProperties(cliente, 0, nullptr); },
                              dati};
  return 1;
}

Bool Ammetti(char* /*macchina*/) {
  return True;
}

pid_t Avvia(const Stato& stato, char** comando) {
  const pid_t figlio = fork();
  if (figlio != 0) return figlio;
  close(stato.VersoGestore[0]);
  close(stato.VersoComando[1]);
  // Out of each other's way first: the pipes may have been made as 3 and 4.
  const int scrive = dup(dup(stato.VersoGestore[1]));
  const int legge = dup(dup(stato.VersoComando[0]));
  dup2(scrive, Comandi);
  dup2(legge, Fatti);
  execv(comando[0], comando);
  _exit(127);
}

void Accetta(Stato& stato, IceListenObj ascolto) {
  IceAcceptStatus esito = IceAcceptSuccess;
  stato.Linea = IceAcceptConnection(ascolto, &esito);
  while (stato.Linea != nullptr && IceConnectionStatus(stato.Linea) == IceConnectPending)
    IceProcessMessages(stato.Linea, nullptr, nullptr);
}

/// Until the command has closed its descriptors.
void Servi(Stato& stato, std::span<const IceListenObj> ascolti) {
  for (;;) {
    std::vector<pollfd> attesi = {{stato.VersoGestore[0], POLLIN, 0}};
    for (IceListenObj ascolto : ascolti) attesi.push_back({IceGetListenConnectionNumber(ascolto), POLLIN, 0});
    const bool conLinea = stato.Linea != nullptr;
    if (conLinea) attesi.push_back({IceConnectionNumber(stato.Linea), POLLIN, 0});
    if (poll(attesi.data(), attesi.size(), -1) < 0) continue;
    for (std::size_t i = 0; i < ascolti.size(); ++i)
      if (attesi[i + 1].revents != 0) Accetta(stato, ascolti[i]);
    if (conLinea && attesi.back().revents != 0 &&
        IceProcessMessages(stato.Linea, nullptr, nullptr) == IceProcessMessagesIOError) {
      stato.Linea = nullptr;
      stato.Cliente = nullptr;
    }
    char lettera = 0;
    if (attesi[0].revents == 0) continue;
    if (read(stato.VersoGestore[0], &lettera, 1) != 1) return;
    Esegui(stato, lettera);
  }
}

/// What a client can connect to; nothing more is asked of whoever does.
class Ascolti {
 public:
  /// Puts the addresses into the environment. Without listeners after a message.
  explicit Ascolti(Stato& stato) {
    std::array<char, 256> errore = {};
    char produttore[] = "Prova";
    char versione[] = "1";
    if (SmsInitialize(produttore, versione, NuovoCliente, &stato, Ammetti, errore.size(), errore.data()) ==
            0 ||
        IceListenForConnections(&quanti_, &primo_, errore.size(), errore.data()) == 0) {
      static_cast<void>(std::fprintf(stderr, "gestore: %s\n", errore.data()));
      return;
    }
    for (IceListenObj ascolto : Tutti()) IceSetHostBasedAuthProc(ascolto, Ammetti);
    setenv("SESSION_MANAGER", TestoC(IceComposeNetworkIdList(quanti_, primo_), &std::free).get(), 1);
  }
  ~Ascolti() {
    if (primo_ != nullptr) IceFreeListenObjs(quanti_, primo_);
  }
  Ascolti(const Ascolti&) = delete;
  Ascolti& operator=(const Ascolti&) = delete;

  std::span<const IceListenObj> Tutti() const { return {primo_, static_cast<std::size_t>(quanti_)}; }

 private:
  int quanti_ = 0;
  IceListenObj* primo_ = nullptr;
};

}  // namespace

int main(int argc, char** argv) {
  Stato stato;
  if (argc < 2 || pipe(stato.VersoGestore.data()) != 0 || pipe(stato.VersoComando.data()) != 0)
    return EXIT_FAILURE;
  const Ascolti ascolti(stato);
  if (ascolti.Tutti().empty()) return EXIT_FAILURE;
  const pid_t comando = Avvia(stato, argv + 1);
  if (comando < 0) return EXIT_FAILURE;
  close(stato.VersoGestore[1]);
  close(stato.VersoComando[0]);
  Servi(stato, ascolti.Tutti());
  int esito = 0;
  waitpid(comando, &esito, 0);
  return WIFEXITED(esito) ? WEXITSTATUS(esito) : EXIT_FAILURE;
}
