#include "addresses/address_export.h"

#include "platform/basic/text.h"
#include "platform/basic/utf8.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace addresses {

namespace {

namespace fs = std::filesystem;

constexpr auto Kopf = "Name;Vorname;Telefon;Fax;Strasse;PLZ;Ort;Land;Bemerkungen;Email;Anrede;Firma";
constexpr auto Zeilenende = "\r\n";

/// In the code page of the word processor.
std::string Ansi(const std::string& text) {
    std::string ansi;
    for (const char32_t zeichen : basic::toCharacters(basic::normalised(text))) {
        std::string eines;
        basic::appendCharacter(eines, zeichen);
        ansi += static_cast<char>(basic::Asc(eines));
    }
    return ansi;
}

/// Without what separates values, records or the halves of a quoted value.
std::string ohneTrenner(std::string text) {
    std::ranges::replace_if(
        text, [](char c) { return c == ';' || c == '~'; }, ',');
    std::ranges::replace(text, '"', '\'');
    return text;
}

std::string Wert(const std::string& text) {
    std::string wert = ohneTrenner(basic::Replace(text, Zeilenende, " "));
    std::ranges::replace_if(
        wert, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return wert;
}

/// A remark keeps its lines: it stands between quotes.
std::string Bemerkung(const std::string& text) {
    std::string zeilen = basic::Replace(ohneTrenner(text), Zeilenende, "\n");
    std::ranges::replace(zeilen, '\r', '\n');
    std::ranges::replace_if(
        zeilen, [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\n'; }, ' ');
    return "\"" + basic::Replace(zeilen, "\n", Zeilenende) + "\"";
}

std::string Satz(const Adresse& a) {
    return Wert(a.LastName) + ";" + Wert(a.FirstName) + ";" + Wert(a.Phone) + ";" + Wert(a.TeleFax) + ";" +
           Wert(a.Address) + ";" + Wert(a.PostalCode) + ";" + Wert(a.City) + ";" + Wert(a.Country) + ";" +
           Bemerkung(a.BemerkAdr) + ";" + Wert(a.EMAIL) + ";" + Wert(a.Anrede) + ";" + Wert(a.CompanyName);
}

bool schreiben(const std::string& datei, const std::string& inhalt) {
    std::ofstream aus(datei, std::ios::binary | std::ios::trunc);
    aus << inhalt;
    aus.close();
    return !aus.fail();
}

} // namespace

bool AdressdateiSchreiben(const std::string& datei, const Adresse& adresse, Satzende ende) {
    const std::string schluss = ende == Satzende::Tilde ? std::string("~") + Zeilenende : Zeilenende;
    // Beside the file first, so that a full disk does not take the old one too.
    const std::string neu = datei + ".neu";
    std::error_code fehler;
    if (schreiben(neu, Kopf + schluss + Ansi(Satz(adresse)) + schluss))
        fs::rename(neu, datei, fehler);
    else
        fehler = std::make_error_code(std::errc::io_error);
    if (!fehler) return true;
    std::error_code egal;
    fs::remove(neu, egal);
    return false;
}

} // namespace addresses
