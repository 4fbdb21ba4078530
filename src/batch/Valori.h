// Single values of the command line: what they mean, and whether they mean something.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "verifica/Regole.h"

namespace parvik::batch {

/// The whole text as a number; nullopt when it is none.
std::optional<int> NumeroIntero(std::string_view testo);
/// "3,14,97" as numbers; nullopt when one is none.
std::optional<std::vector<int>> Numeri(std::string_view elenco);
/// "formato-diverso,riga-lunga" as rules, none of "" ; nullopt when one is none.
std::optional<InsiemeRegole> Regole(std::string_view elenco);

/// Instead of a type's number: the one that the file's name tells.
inline constexpr std::string_view Auto = "auto";

// Checks: the text that says what is wrong, or nothing.
std::string NonVuoto(const std::string& valore);
std::string Numero(const std::string& valore);
std::string NumeroPositivo(const std::string& valore);
std::string NumeroOAuto(const std::string& valore);
std::string NomeSezione(const std::string& valore);
std::string ElencoDiNumeri(const std::string& valore);
std::string ElencoDiRegole(const std::string& valore);

}  // namespace parvik::batch
