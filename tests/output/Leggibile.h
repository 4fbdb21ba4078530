// A styled text as a person can read it: <GR>Totale</GR> 12,00
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "output/MettiStili.h"

namespace parvik::prova {

/// Runs that touch and look alike are one. What stands in the normal style has no tag; <GR>, <CO>, <IT> and
/// <SO> are the styles on untouched characters, <?> is the pane's own look. A look that none of them has is
/// spelled out: <GR+10>. A line end is written as ¶. Fails the test unless the runs cover the text without
/// overlaps.
std::string Leggibile(std::string_view testo, const std::vector<Tratto>& tratti);

/// The text after the style pass.
std::string ConStili(std::string testo);

/// A look for each byte.
std::vector<Aspetto> AspettiPerByte(std::string_view testo, const std::vector<Tratto>& tratti);

}  // namespace parvik::prova
