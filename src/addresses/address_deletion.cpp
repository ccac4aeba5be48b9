#include "addresses/address_deletion.h"

namespace addresses {

namespace {

using services::MsgButtons;
using services::MsgDefault;
using services::MsgIcon;

std::string Benutztmeldung(const std::vector<std::string>& benutzer) {
    if (benutzer.empty()) return "Die ausgewählte Adresse wird noch  benutzt und kann deswegen nicht gelöscht werden.";
    std::string meldung = "Die ausgewählte Adresse wird noch von folgenden Programmen benutzt: ";
    for (const std::string& name : benutzer)
        meldung += "\n" + name;
    return meldung;
}

} // namespace

bool AdresseLöschenMitFrage(jet::Database& db, std::int64_t id, const Nutzer& nutzer, services::Dialogs& dialogs) {
    AdressBenutzungBereinigen(db, nutzer);
    const auto antwort =
        dialogs.MsgBox("Soll die ausgewählte Adresse gelöscht werden?",
                       {MsgButtons::OKCancel, MsgIcon::Question, MsgDefault::Button2}, nutzer.strTitel);
    if (antwort != services::MsgResult::OK) return false;
    if (!AdresseFrei(db, id)) {
        dialogs.MsgBox(Benutztmeldung(BenutzerDerAdresse(db, id)), {.icon = MsgIcon::Exclamation}, nutzer.strTitel);
        return false;
    }
    AdresseLöschen(db, id);
    return true;
}

} // namespace addresses
