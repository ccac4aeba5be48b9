#pragma once

#include "addresses/address.h"
#include "addresses/address_list.h"
#include "addresses/postal_codes.h"
#include "platform/services/controls.h"
#include "start/global_state.h"

#include <cstdint>
#include <string>
#include <vector>

namespace reservations {

/// The address half of the reservation form: guest, country, postal code, and what is stored in Address.
class Adressteil {
public:
    /// State and list must outlive it. The list is told when addresses have changed.
    Adressteil(start::GlobalState& g, addresses::Adressliste& liste);

    /// Empty fields for a new guest, without the focus.
    void leeren();
    /// Shows a stored address; 0 or one that is gone: empty fields.
    void zeigen(std::int64_t id);

    // event procedures
    void cboAdresse_Change();                   ///< typed: a guest that is not in the list, until it is his name again
    void cboAdresse_Click(std::int64_t id);     ///< chosen from the list
    bool cboAdresse_KeyDown(services::Key key); ///< F2 deletes the address
    void Feld_Change() { Adress_nderung = true; } ///< any other field of this half
    services::Leave txtPLZ_LostFocus();           ///< one place fills the town, several are offered
    void cboOrt_Click();                          ///< one of the offered places: its postal code too
    bool cboLand_KeyDown(services::Key key);      ///< F2 takes the country from the list
    services::Leave cboLand_LostFocus();          ///< a new country may go to the list
    bool chStammkunde_KeyDown(services::Key key); ///< F2 asks for the default of new addresses
    void cmdNeuAdress_Click();
    void cmdAdresseSpeichern_Click();

    /// Stores the address where something has changed. False when the user declined or a field is missing; the message
    /// has been shown. Afterwards GastID is the row's.
    bool AdressSpeichern();
    /// Writes the file of a merge with the address on screen; an error is told.
    void exportieren(bool melden);
    void mnuStatus_Click(); ///< sets older stays of this guest to billed

    [[nodiscard]] std::int64_t GastID() const { return id_; }
    [[nodiscard]] bool Änderung() const { return Adress_nderung; }

    bool Adress_nderung = false; ///< something of this half was changed

    // controls
    services::MatchBox cboAdresse; ///< last name of the guest; completes from all addresses
    services::TextBox txtVorname;
    services::TextBox txtName2;
    services::ComboBox cboAnrede;
    services::TextBox txtStrasse;
    services::TextBox txtPLZ;
    services::ComboBox cboOrt; ///< the list holds the places that the postal code has
    services::ComboBox cboLand;
    services::TextBox txtTelefon;
    services::TextBox txtFax;
    services::TextBox txtEMail;
    services::ComboBox cboRaucher;
    services::TextBox txtBemerkAdr;
    services::TextBox txtAdrWE; ///< who created the address
    services::TextBox txtAdrWannErstellt;
    services::TextBox txtAdrWG; ///< who changed it last
    services::TextBox txtAdrWannGeändert;
    services::CheckBox chStammkunde{"S&tammkunde"};
    services::Button cmdNeuAdress{"Neue &Adresse"};
    services::Button cmdAdresseSpeichern{"A&dresse speichern"};

private:
    /// A field of text and the column that it goes to.
    struct Textfeld {
        const char* Spalte;
        const char* Bezeichnung;
        std::string* Text;
        services::Control* Steuerelement;
        int* MaxLength;
        services::KeyFilter* Keys;
    };

    [[nodiscard]] std::vector<Textfeld> Textfelder();
    void einrichten();
    void listenLesen();
    void setLand(const std::string& name);
    void setRaucher(const std::string& wert);
    void anführungszeichenSchließen();
    [[nodiscard]] std::string Nachname() const;
    [[nodiscard]] std::string Vorname() const;
    [[nodiscard]] addresses::Adresse gelesen() const;
    void zeige(const addresses::Adresse& adresse);

    [[nodiscard]] bool vollständig();
    [[nodiscard]] bool passtInFelder();
    [[nodiscard]] bool darfAnlegen();
    [[nodiscard]] bool darfAnlegenOderBerichtigen();
    [[nodiscard]] bool speichern();
    [[nodiscard]] bool istInland() const;
    [[nodiscard]] bool landLöschen(std::int64_t id);

    start::GlobalState& g_;
    addresses::Adressliste& liste_;
    std::int64_t id_ = 0;
    addresses::Adresse gezeigt_;       ///< as it was shown last; ID 0: nobody
    std::string geprüftePLZ_;          ///< the code that the town stands for
    std::vector<addresses::Ort> orte_; ///< behind the list of cboOrt
    std::string freiesLand_;           ///< not in the list and not to go there
};

} // namespace reservations
