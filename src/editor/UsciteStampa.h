// Where what is rendered goes outside the window, and under which names.
#pragma once

#include <filesystem>
#include <string>

#include "start/Installazione.h"
#include "template/Documento.h"

namespace parvik {

/// Where files are offered: the host's folder for them, or the host's own when it has none.
std::filesystem::path CartellaUscite(const Installazione& installazione);

/// The template's file name with another extension (".txt"), UTF-8; "" while it has none.
std::string NomeUscita(const StatoModello& stato, const char* estensione);

/// Of a print job, and of a document that stands for one: the template's file name, UTF-8.
std::string NomeLavoro(const StatoModello& stato);

}  // namespace parvik
