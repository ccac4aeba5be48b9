#pragma once

#include "addresses/address_list.h"
#include "masterdata/rooms.h"
#include "platform/services/controls.h"
#include "reservations/address_part.h"
#include "reservations/reservation.h"
#include "reservations/states.h"
#include "start/global_state.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace reservations {

/// What the form reaches on higher floors. A function that is not handed in: the answer is "unknown", or nothing
/// happens.
struct Formulardienste {
    addresses::Adressliste& adressen;        ///< looks for what others stored, once in a form's life
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

/// The look of the form's states; the states themselves are fields of the model.
namespace look {
inline constexpr services::Colour Aktiv = 0xADFF95;      ///< green: checked in, billed, paid, season price, block
inline constexpr services::Colour Warnung = 0xA4BBFF;    ///< checked out, open, a short name or number that is taken
inline constexpr services::Colour Überschneidung = 0xFF; ///< the label behind the overlap warning
} // namespace look

/// The reservation form: makes, shows and changes one stay, or walks through those of the waiting row on a day.
class frmReservierung {
public:
    /// State and services must outlive the form.
    frmReservierung(start::GlobalState& g, Formulardienste dienste, const start::ReservierungAnfrage& anfrage);
    frmReservierung(const frmReservierung&) = delete;
    frmReservierung& operator=(const frmReservierung&) = delete;
    ~frmReservierung() = default;

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
    /// An entry of the menu by its name; one that leads nowhere yet does nothing.
    void Menü_Click(std::string_view name);

    // -- room, days and price (reservation_form_stay.cpp)
    void fldZimmer_Click(); ///< chosen or typed
    void cmdAuswahl_Click();
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
    services::Leave cboAdrRechnung_LostFocus();
    void Feld_Change(); ///< any other field of the stay, meal boxes and laundry too
    /// A text box of the stay is left that has no procedure of its own: quotation marks stand in pairs.
    services::Leave Text_LostFocus(services::TextBox& box);

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
    [[nodiscard]] bool istKürzelVergeben() const { return kürzelVergeben_; }
    [[nodiscard]] bool istÜberschneidung() const { return überschneidung_; }
    /// Something of the stay was changed and is not stored.
    [[nodiscard]] bool Änderung() const { return änderung_ || adresse.GastID() != gespeichert_.GastID; }
    /// The stays of the waiting row are walked through.
    [[nodiscard]] bool istWarteliste() const { return wartetag_.has_value(); }

    Adressteil adresse;

    // controls of the stay; fld... with an underscore stands for an umlaut
    services::TextBox fldID;
    services::TextBox fldCheckDatum; ///< hidden: the date that the next check-in or check-out sets
    services::Label lbZimmer;        ///< as the plan calls the rooms
    services::ComboBox fldZimmer;
    services::OptionGroup OptZiAuswahl1;                 ///< 0: all rooms, 1: the free ones
    services::Button cmdAuswahl{"Zimmerliste erneuern"}; ///< fills the room list anew
    services::ComboBox cboArt;
    services::Label lbArt{"Belegu&ngsart"};
    services::TextBox fldVon;
    services::TextBox fldBis;
    services::TextBox fldResTage; ///< nights
    services::TextBox fldAnzahlG_ste;
    services::TextBox txtAnz_Kinder;
    services::TextBox txtAlter_Kinder;
    services::ComboBox cboTarif; ///< price per night
    services::TextBox fldPreis;  ///< total
    services::CheckBox chFix{"Preis fi&xieren"};
    services::Button cmdSaisonpreis{"Saisonpr&eis"};
    services::TextBox fldK_rzel;
    services::TextBox fldInfo;
    services::CheckBox chFr_hst_ck{"Frühstück"};
    services::CheckBox chMittag{"Mittagessen"};
    services::CheckBox chAbendessen{"Abendessen"};
    services::CheckBox chNichtAnlegen{"&Verpflegung nicht anlegen"};
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
    services::Button cmdHeute{"&Heute"};
    services::Button cmdAbgerechnet;
    services::Button cmdBezahlt;
    services::Button cmdZahlDetails{"&Zahlungen"};
    services::Button cmdReservieren{"&Speichern"};
    services::Button cmdZu{"S&peichern und schließen"};
    services::Button cmdWarten{"&Warteposition"};
    services::Button cmdBestVorschau;
    services::Button cmdRechnung;
    services::Button cmdAnmeldung{"An&meldung"};
    services::Button cmdBlockbuchung{"Blockb&uchung"};
    services::Button cmdBemBlock{"&Info für den Block"};
    services::Button cmdAbbrechen{"A&bbrechen"};
    services::Button cmdL_schen{"&Löschen"};
    services::Button cmdErster{"|<"};
    services::Button cmdVoriger{"<"};
    services::Button cmdN_chster{">"};
    services::Button cmdLetzter{">|"};
    services::Button cmdGroesser{"&Größer"};
    services::Button cmdKleiner{"&Kleiner"};
    services::Control frZusatz; ///< the frame that only the large form shows
    services::Menu Menü;

private:
    enum class Angebotszustand { Nein, Angebot, OhneZimmer };
    enum class Meldung { MitPunkt, OhnePunkt };

    // the controls' captions, tool tips, keys and widths (reservation_form_look.cpp)
    void beschriften();
    void tippsSetzen();
    void breitenSetzen();
    void menüBauen();
    void knöpfeBeschriften();
    void zeigeGröße();

    // opening and closing
    void listenFüllen();
    void neuÖffnen(const start::ReservierungAnfrage& anfrage);
    void datenAusAnfrage(const start::ReservierungAnfrage& anfrage);
    void vorgabenSetzen(int art);
    void bestehendeÖffnen(const start::ReservierungAnfrage& anfrage);
    void platzZeigen(std::size_t platz);
    void zuPlatz(std::size_t platz);
    bool laden(int id);
    void aufenthaltZeigen(const Reservierung& r);
    void restZeigen(const Reservierung& r);
    void ständeZeigen();
    void gästezahlAnpassen();
    [[nodiscard]] bool änderungenKlären();

    // room, days and price
    [[nodiscard]] std::optional<basic::Date> datum(const services::TextBox& box) const;
    /// None for what is no number and for amounts that nobody means.
    [[nodiscard]] static std::optional<double> preisAus(std::string_view text);
    [[nodiscard]] double tarif() const; ///< 0 where the box holds no number
    [[nodiscard]] int Zimmernummer() const;
    [[nodiscard]] std::string zimmername() const;
    [[nodiscard]] std::vector<int> angeboteneZimmer() const;
    void zimmerlisteFüllen();
    void zimmerAuswählen(int nummer);
    void zimmerGewechselt();
    [[nodiscard]] std::optional<masterdata::tplVorgabe> vorgabe(int nummer) const;
    void preisAusZimmer(int nummer);
    void datumGeändert();
    void preisFolgtDenTagen();
    void prüfdatumNachziehen();
    bool tagVerschieben(services::TextBox& box, services::Key key);
    services::Leave datumVerlassen(services::TextBox& box);
    void warnen();
    void überschneidungPrüfen();
    [[nodiscard]] Angebotszustand angebot() const;
    [[nodiscard]] double Saisonpreis(bool melden);
    void saisonpreisAus();
    void setzeSaisonpreis(bool saisonpreis);
    void saisonpreisErkennen();
    void setzeTarif(const std::string& text);
    void tarifeFüllen();
    void tarifMerken();
    void tarifVergessen();

    // short name, number and billing address
    void setzeKürzel(const std::string& text);
    void kürzelPrüfen();
    void kürzelVorgeben();
    void nummerVergeben();
    void nummerPrüfen();
    [[nodiscard]] bool rechnungsadresseFinden();

    // states
    [[nodiscard]] bool angebotAbgelehnt();
    [[nodiscard]] bool checkIn();
    [[nodiscard]] bool checkOut();
    [[nodiscard]] bool gleicherTag(const services::TextBox& a, const services::TextBox& b) const;
    void setzeChecked(bool checked);
    void zeigeChecked();
    void zeigeAbrechnung();
    void zeigeBlock();
    void zeigeBezahlt();

    // storing
    bool speichern(Meldung meldung);
    bool speicherlauf();
    void tageTauschen();
    [[nodiscard]] bool pflichtfelderDa();
    [[nodiscard]] bool raumUndTageDa();
    [[nodiscard]] bool zahlenPassen();
    [[nodiscard]] bool ganzzahlPasst(services::TextBox& box, std::string_view name);
    [[nodiscard]] bool lösenUndAblegen();
    [[nodiscard]] bool ablegen();
    [[nodiscard]] Reservierung ausFeldern() const;
    void rechnungsadresseVorschlagen(Reservierung& reservierung);
    void abgelegt(const Reservierung& reservierung);
    [[nodiscard]] bool schluss(bool abgelegt);
    void zurücknehmen();
    void nachDemSpeichern();
    void kollisionsergebnisÜbernehmen(const start::KollisionErgebnis& ergebnis);
    void überschneidungMelden();
    bool löschen();
    /// Shows a message; always False, the answer of what it refuses.
    bool ablehnen(const std::string& text, const std::string& titel = {});
    [[nodiscard]] services::MsgResult fragen(const std::string& text, services::MsgStyle style,
                                             const std::string& titel = {});

    start::GlobalState& g_;
    Formulardienste dienste_;
    Speicherstand stand_;
    Reservierung gespeichert_; ///< as it was read or stored last
    std::vector<masterdata::tplZimmer> zimmer_;
    std::vector<int> warteliste_;
    std::size_t platz_ = 0; ///< in the waiting list
    std::optional<basic::Date> wartetag_;
    std::string caption_;
    Abrechnungsstand abrechnung_ = Abrechnungsstand::Offen;
    int letztesZimmer_ = 0; ///< room of the last change, so that typing a name does not change it twice
    bool geschlossen_ = false;
    bool gross_ = true;
    bool block_ = false;
    bool saisonpreis_ = false;
    bool checked_ = false;
    bool änderung_ = false;
    bool kürzelVergeben_ = false;
    bool nummerVergeben_ = false;
    bool überschneidung_ = false;
};

} // namespace reservations
