// The one door between the bytes of the core and the Unicode of the toolkit. No other file names an encoding.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace parvik {

/// A Windows-1252 text for the screen. CR LF becomes a line feed; a byte that no glyph shows (a control
/// character, a lone CR or LF, one of the five values that the code page leaves undefined) gets a visible
/// stand-in.
QString PerSchermo(std::string_view ansi);

/// The way back: undoes PerSchermo on all 256 byte values. Line and paragraph separators of the toolkit are
/// line ends too. What has no Windows-1252 value becomes "?", one for each character.
std::string DaSchermo(const QString& testo);

/// The same for a text from elsewhere (the clipboard, another program), in which a CR ends a line too, alone
/// or with its line feed.
std::string DaAltrove(const QString& testo);

/// The bytes by their Unicode values and nothing else: as many characters, line ends as they are.
QString InUnicode(std::string_view ansi);

/// What of `testo` can stand in a template: every other character is "?".
QString SoloAnsi(const QString& testo);

/// `testo` in one line: whatever ends a line is a space, CR LF is one, and so are the stand-ins of these
/// characters.
QString InUnaRiga(const QString& testo);

/// `testo` as a tooltip shows it as it stands: what it would take for mark-up is the catalogue's or the
/// user's own text.
QString PerSuggerimento(const QString& testo);

/// UTF-8 texts of the core (messages, captions, paths), with CR LF as the toolkit's line end.
QString DaUtf8(std::string_view utf8);

}  // namespace parvik
