// The words of the command line, made safe for the argument library.
//
// The library reads more into a word than is there: "[a,b]" are two values, "++" ends a command, "--o=" takes
// the next word, a word behind "--" may be an option again. Here a name is a name, whatever is in it. So what
// a word is for is decided here, and the library sees every value and every name behind a sign.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace parvik::batch {

enum class GenereOpzione { Sconosciuta, SenzaValore, ConValore };

struct Parole {
  std::vector<std::string> Schermate;   // for the library, in their order
  std::optional<std::string> Comando;   // the first word that is neither an option nor its value
  std::optional<std::string> Ripetuta;  // an option that was given a value before
};

/// `genere` knows the options by their names ("--tipo", "-o"), `comando` the names of the commands.
Parole Scherma(const std::vector<std::string>& parole,
               const std::function<GenereOpzione(const std::string&)>& genere,
               const std::function<bool(const std::string&)>& comando);

/// What was written: undoes the above for a word, and for the value that the library took out of one.
std::string Svela(const std::string& schermata);

}  // namespace parvik::batch
