// Colours that can be read on what the palette has.
#pragma once

#include <QRgb>

namespace parvik {

inline constexpr QRgb Nero = 0xFF000000;
inline constexpr QRgb Bianco = 0xFFFFFFFF;

/// The least contrast of a colour with what it stands on: what small text needs to be legible.
inline constexpr double ContrastoMinimo = 4.5;

double Contrasto(QRgb uno, QRgb altro);

/// `da` with a part of `a` in it: 0 none, 1 nothing else.
QRgb Misto(QRgb da, QRgb a, double parte);

/// Black or white, which of them is easier to read on that.
QRgb Estremo(QRgb base);

/// `tinta`, moved towards `estremo` until it can be read on both.
QRgb Leggibile(QRgb tinta, QRgb estremo, QRgb base, QRgb fondo);

/// A background that marks something: towards the highlight, as far as text in the colour `estremo` stays
/// legible on it; if that is nowhere, away from `estremo`.
QRgb FondoSu(QRgb base, QRgb evidenza, QRgb estremo);

}  // namespace parvik
