// All that a command may ask of, or say to, the person in front of the screen.
#pragma once

#include <filesystem>
#include <string>

namespace parvik {

enum class Icona { Critica, Esclamazione, Domanda };
enum class Pulsanti { Ok, SiNo, SiNoAnnulla };

/// The numbers are those of the message boxes' return values.
enum class Risposta { Ok = 1, Annulla = 2, Si = 6, No = 7 };

inline constexpr const char* TitoloMessaggi = "Ordavia";

struct Messaggio {
  std::string Testo;  // UTF-8; lines separated by CR LF
  Icona Simbolo = Icona::Critica;
  Pulsanti Tasti = Pulsanti::Ok;
  std::string Titolo = TitoloMessaggi;  // UTF-8
};

struct RichiestaFile {
  enum class Scopo { Apri, Salva };
  Scopo Uso = Scopo::Apri;
  std::string Titolo;  // UTF-8; "" for the toolkit's own
  std::filesystem::path Cartella;
  std::string EtichettaFiltro;  // UTF-8: what the user reads of the one filter entry
  std::string Modello;          // its pattern (* and ?), UTF-8, matched without regard to case
  std::string NomeProposto;     // UTF-8
};

class Interlocutore {
 public:
  Interlocutore() = default;
  Interlocutore(const Interlocutore&) = delete;
  Interlocutore& operator=(const Interlocutore&) = delete;
  virtual ~Interlocutore() = default;

  /// Shows a message and waits for the answer. Where there is a Cancel button, closing the box means it.
  virtual Risposta Chiedi(const Messaggio& messaggio) = 0;

  /// The chosen path as it was chosen or typed; empty when the choice was given up.
  virtual std::filesystem::path ScegliFile(const RichiestaFile& richiesta) = 0;

  /// Ends the program at once: no clean-up, no question. A real one does not come back; a caller must still
  /// be prepared to go on after it.
  virtual void Termina(int stato) = 0;
};

}  // namespace parvik
