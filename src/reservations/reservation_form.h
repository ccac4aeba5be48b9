#pragma once

#include "addresses/address_list.h"
#include "masterdata/rooms.h"
#include "platform/services/controls.h"
#include "reservations/address_part.h"
#include "reservations/reservation.h"
#include "start/global_state.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace reservations {

/// What the form reaches on higher floors. A function that is not handed in: the answer is "unknown", or nothing
/// happens.
struct Formulardienste {
    addresses::Adressliste& adressen;        ///< read once per run
    std::function<void()> planNeuLaden = {}; ///< after each save and delete
    std::function<std::optional<bool>(int id)> bezahlt = {};
    /// Adapts the meal posts of the stored stay.
    std::function<void(int id)> verpflegungBuchen = {};
};

/// What a save leaves behind while the form lives.
struct Speicherstand {
    bool NeueReservierung = false; ///< the row is not stored yet
    bool InWarteposition = false;  ///< this save puts the stay into the waiting row
    bool KollisionGelöst = false;  ///< kept over tests: a failed booking leaves what stood
    bool Verwerfen = false;        ///< the user gave the new stay up
    bool KürzelMeldungAus = false; ///< once: that the short name exists is not told
    bool MeldungGezeigt = false;   ///< the overlap message comes once in the life of the form
    bool OffenHalten = false;      ///< the next cmdZu does not close
};

enum class Abrechnungsstand { Offen, Abgerechnet };

/// The reservation form: makes, shows and changes one stay, or walks through those of the waiting row on a day.
class frmReservierung {
public:
    /// State and services must outlive the form.
    frmReservierung(start::GlobalState& g, Formulardienste dienste, const start::ReservierungAnfrage& anfrage);

    // event procedures, by topic
    // -- opening and closing (reservation_form_open.cpp)
    void cmdErster_Click();
    void cmdVoriger_Click();
    void cmdN_chster_Click();
    void cmdLetzter_Click();
    void cmdAbbrechen_Click();
    /// May the window close? Asks about changes first. True also after cmdAbbrechen.
    [[nodiscard]] bool canClose();
    void cmdGroesser_Click();
    void cmdKleiner_Click();
    void mnuGroesse_Click();
    void mnuNummerEinstellen_Click();

    // -- room, days and price (reservation_form_stay.cpp)
    void fldZimmer_Click();
    services::Leave fldZimmer_LostFocus();
    void fldVon_Change();
    void fldBis_Change();
    bool fldVon_KeyDown(services::Key key); ///< plus and minus move the day
    bool fldBis_KeyDown(services::Key key);
    services::Leave fldVon_LostFocus();
    services::Leave fldBis_LostFocus();
    void OptZiAuswahl1_Click(int index);
    bool OptZiAuswahl1_KeyDown(services::Key key); ///< F2 asks for the default
    void cboArt_Click();
    void chFix_Click();
    void cboTarif_Change();
    bool cboTarif_KeyDown(services::Key key); ///< Return keeps the price in the list, F2 takes it out
    services::Leave cboTarif_LostFocus();
    void fldPreis_Change();
    services::Leave fldPreis_LostFocus();
    void cmdSaisonpreis_Click();

    // -- short name, number, guests, meals, laundry, remarks (reservation_form_fields.cpp)
    void fldK_rzel_Change();
    void txtBeNummer_eigen_Change();
    services::Leave txtBeNummer_eigen_LostFocus();
    void txtBeNummer_eigen_DblClick();
    void cboAdrRechnung_Change();
    void cboAdrRechnung_Click(std::int64_t id);
    void Feld_Change(); ///< any other field of the stay

    // -- states (reservation_form_states.cpp)
    void lbChecked_Click();
    void cmdHeute_Click();
    void cmdAbgerechnet_Click();
    void cmdBezahlt_Click();
    void mnuStatus_Click();
    void cmdBemBlock_Click();

    // -- storing and deleting (reservation_form_save.cpp)
    void cmdReservieren_Click();
    void cmdZu_Click();
    void cmdWarten_Click();
    void cmdL_schen_Click();
    void cmdAdresseSpeichern_Click();

    // operations of the form
    bool fktTesteÜberschneidungen();
    void subSetPreis(); ///< nights and total from the night price
    void Abrechnen(int id);
    void AbrechnenAuslesen(int id);
    bool AdressSpeichern() { return adresse.AdressSpeichern(); }
    /// The save. False when nothing was stored, or what was stored had to go again.
    bool Reserv();
    void Speicheraktiv(bool gesperrt);
    void subSetNächte(); ///< the nights field alone

    /// The form has done its work: its window is to be closed without questions.
    [[nodiscard]] bool Geschlossen() const { return geschlossen_; }
    /// The ID of the stay shown; 0 while it is not stored.
    [[nodiscard]] int ID() const;
    /// Title of the window.
    [[nodiscard]] std::string Caption() const { return caption_; }
    [[nodiscard]] bool istGross() const { return gross_; }
    [[nodiscard]] Abrechnungsstand Abrechnung() const { return abrechnung_; }
    [[nodiscard]] bool istBlock() const { return block_; }
    [[nodiscard]] bool istSaisonpreis() const { return saisonpreis_; }
    [[nodiscard]] bool istEingecheckt() const { return checked_; }

    Adressteil adresse;

    // controls of the stay; fld... with an underscore stands for an umlaut
    services::TextBox fldID;
    services::TextBox fldCheckDatum; ///< hidden: the date that the next check-in or check-out sets
    services::ComboBox fldZimmer;
    services::OptionGroup OptZiAuswahl1; ///< "alle" or "freie" rooms
    services::Button cmdAuswahl;         ///< fills the room list anew
    services::ComboBox cboArt;
    services::Label lbArt{"Belegungs&art"};
    services::TextBox fldVon;
    services::TextBox fldBis;
    services::TextBox fldResTage; ///< nights
    services::TextBox fldAnzahlG_ste;
    services::TextBox txtAnz_Kinder;
    services::TextBox txtAlter_Kinder;
    services::ComboBox cboTarif; ///< price per night
    services::TextBox fldPreis;  ///< total
    services::CheckBox chFix;
    services::Button cmdSaisonpreis;
    services::TextBox fldK_rzel;
    services::TextBox fldInfo;
    services::CheckBox chFr_hst_ck;
    services::CheckBox chMittag;
    services::CheckBox chAbendessen;
    services::CheckBox chNichtAnlegen;
    services::ComboBox cboArtikel;
    services::Label lbW_sche1;
    services::Label lbW_sche2;
    services::TextBox fldW_sche1;
    services::TextBox fldW_sche2;
    services::TextBox txtBeNummer; ///< hidden: the counter
    services::TextBox txtBeNummer_eigen;
    services::MatchBox cboAdrRechnung; ///< billing address; empty: the guest himself
    services::TextBox txtResDatum;
    services::TextBox txtWE;
    services::TextBox txtWG;
    services::Label lbWarnung;
    services::Label lbWarnungSchrift;
    services::Button lbChecked;
    services::Button cmdHeute;
    services::Button cmdAbgerechnet;
    services::Button cmdBezahlt;
    services::Button cmdZahlDetails;
    services::Button cmdReservieren;
    services::Button cmdZu;
    services::Button cmdWarten;
    services::Button cmdBestVorschau;
    services::Button cmdRechnung;
    services::Button cmdAnmeldung;
    services::Button cmdBlockbuchung;
    services::Button cmdBemBlock;
    services::Button cmdAbbrechen;
    services::Button cmdL_schen;
    services::Button cmdErster;
    services::Button cmdVoriger;
    services::Button cmdN_chster;
    services::Button cmdLetzter;
    services::Button cmdGroesser;
    services::Button cmdKleiner;
    services::Control frZusatz; ///< the frame that only the large form shows
    services::Menu Menü;

private:
    // shaped by its implementation
    start::GlobalState& g_;
    Formulardienste dienste_;
    Speicherstand stand_;
    std::vector<masterdata::tplZimmer> zimmer_;
    std::string caption_;
    Abrechnungsstand abrechnung_ = Abrechnungsstand::Offen;
    bool geschlossen_ = false;
    bool gross_ = true;
    bool block_ = false;
    bool saisonpreis_ = false;
    bool checked_ = false;
};

} // namespace reservations
