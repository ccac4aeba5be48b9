#pragma once

#include "plan/context_menus.h"
#include "plan/grid.h"
#include "plan/navigation.h"
#include "plan/selection.h"
#include "plan/surroundings.h"
#include "plan/time_log.h"
#include "platform/services/controls.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace plan {

struct Menüpunkt;

/// What an event of the mouse has changed, so that a view paints no more than that.
enum class Wirkung {
    Nichts,
    Status,  ///< the fields that tell of the place under the pointer
    Auswahl, ///< and the stay that is being drawn
    Plan     ///< anything
};

/// The mouse button that is held while the pointer moves.
enum class Maustaste { Keine, Links };

enum class Plantaste { F6, Links, Rechts, Auf, Ab, Return, Esc, Menü };
enum class Umschalt { Los, Gedrückt };

/// The place of the keyboard on the plan. Line 0 is the date header, column 0 the room names.
struct Zellcursor {
    int Zeile = 1;
    int Spalte = 1;

    bool operator==(const Zellcursor&) const = default;
};

/// The main window: what its controls do to the plan and what they show.
class frmMain {
public:
    /// Grid and clock must outlive the form.
    frmMain(Planraster& raster, const services::Clock& clock, Umgebung umgebung = {});

    /// Shows the plan from its standard date and today in the status fields.
    void Form_Load();
    /// The date jump and every reload.
    void subZeigeDatum(basic::Date start);
    void Navigation_Click(const Navigation& button);
    /// The scroll bar has one position for each first row, from 0.
    void ScrollBar_Change(int position);
    void cmdErster_Click();
    void cmdLetzter_Click();
    /// Reads the changes of other workstations; place and selection stay.
    void cmdAktualisieren_Click();
    /// Once a minute.
    void TimerAktualisieren_Timer();

    // The mouse. Lines and columns are those of the cells; 0 or beyond the last one: beside them.

    /// The pointer is here. Asks the data files once for each cell that it comes to. An error of the engine ends it
    /// without a message.
    Wirkung MouseMove(int zeile, int spalte, Maustaste taste = Maustaste::Keine);
    /// The pointer rests with its button held: at the last column the plan goes on under the drawn stay.
    Wirkung MouseHold();
    /// The pointer has rested for a moment: asks whether the stay below it is paid, which takes longer.
    void MouseRest();
    /// The left button is pressed: a new stay begins, or its refusal is told.
    Wirkung MouseDown(int zeile, int spalte);
    /// The left button is up: the drawn stay is entered in its form.
    Wirkung MouseUp();
    /// The button is up, or another window has it: the drawn stay is given up.
    Wirkung MouseLost();
    /// A new stay is being drawn.
    [[nodiscard]] bool AuswahlAktiv() const { return zeichnung_.AuswahlAktiv(); }
    [[nodiscard]] Platz Auswahlplatz() const { return zeichnung_.platz(); }
    /// What a bar tells while the pointer rests on it; empty beside bars.
    [[nodiscard]] std::string ToolTip(int zeile, int spalte) const;

    /// The right button on the cells: `Kontextmenü` holds the menu that is to be opened, or none.
    void RechteTaste(int zeile, int spalte);
    /// The right button beside the cells.
    void Kontext_Öffnen(Kontext wo);
    /// Name of the chosen entry of `Kontextmenü`.
    void Kontext_Click(std::string_view name);
    /// A click on a room's name opens its current stay.
    void Zimmer_Click(int zeile);
    /// The right button on a heading asks for a new one.
    void Beschriftung_Ändern(Planbeschriftung was);

    /// A key on the plan. False when the plan does nothing with it.
    bool KeyDown(Plantaste taste, Umschalt umschalt = Umschalt::Los);
    /// Only while the plan is worked on by keyboard.
    [[nodiscard]] const std::optional<Zellcursor>& Cursor() const { return cursor_; }

    /// Index of the pressed button in the frame of occupancy types.
    void optBelArt_Click(int index);
    void cmdNeu_Click();
    /// Name of the chosen entry.
    void Menu_Click(std::string_view name);

    /// Title of the window.
    [[nodiscard]] std::string Caption() const;
    /// The days shown: "29. Juni – 2. August 2026".
    [[nodiscard]] std::string Zeitraum() const;
    /// Why the last load failed, else empty: the plan then shows what it showed before.
    [[nodiscard]] const std::string& Fehler() const { return fehler_; }
    /// The user has asked for the end: the window is to be closed.
    [[nodiscard]] bool Endegewünscht() const { return ende_; }

    [[nodiscard]] const Planraster& Raster() const { return *raster_; }
    /// The vertical bar: only there when not all rooms are on screen.
    [[nodiscard]] bool ScrollBarVisible() const { return raster_->HöchsteErsteZeile() > 1; }
    [[nodiscard]] int ScrollBarMax() const { return raster_->HöchsteErsteZeile() - 1; }
    [[nodiscard]] int ScrollBarValue() const { return raster_->ErsteZeile() - 1; }

    services::Menu Menü;
    services::Menu Kontextmenü;     ///< without entries: none is to be opened
    services::TextBox fldDatum;     ///< day under the pointer, "dd.mm.yy"
    services::TextBox fldWochentag; ///< its weekday, "Ddd"
    services::TextBox txtFeiertag;  ///< its holiday; only visible when there is one
    services::Label lblHilfe;
    services::Label lblKürzel;        ///< name and guests of the bar under the pointer
    Platz KürzelPlatz;                ///< the bar that lblKürzel lies on
    services::Label lblBeispieldaten; ///< only visible over the sample data
    services::Button cmdBezahlt;
    services::Button cmdNeu;
    services::OptionGroup optBelArt;
    int fldZimmer = 0;     ///< line under the pointer; 0: none
    int fldTag = 0;        ///< column under the pointer; 0: none
    int txtIDBelegung = 0; ///< stay under the pointer; 0: none

    int AuswahlArt = 0; ///< BelegungsID chosen for the next new stay; 0: none
    Farbe AuswahlFarbe = 0;
    int LetzteReservierung = 0; ///< ID of the stay that was opened last; 0: none yet

private:
    /// The stay that the open context menu is about, or the free cell.
    struct Gegenstand {
        std::vector<int> IDs = {};
        std::optional<basic::Date> Wartetag = {};
        int Zimmernummer = 0;
        std::optional<basic::Date> Tag = {};
    };
    enum class Check { In, Out };

    // main_form.cpp
    /// `start` may raise at the ends of the calendar.
    void zeigeAb(const std::function<basic::Date()>& start);
    void füllBelegungsrahmen();
    void springe();
    void starte(const Menüpunkt& punkt);
    void folge(const Menüpunkt& punkt);
    /// Runs what the user has asked for, which may open windows and boxes: an error of it is told. A timed refresh
    /// that falls due meanwhile follows at its end.
    void ungestört(const std::function<void()>& event);
    void öffneReservierung(const start::ReservierungAnfrage& anfrage);
    void öffneLetzte();
    void melde(const std::string& text, const std::string& titel);

    // main_form_mouse.cpp
    void betrete(int zeile, int spalte, Maustaste taste, Wirkung& wirkung);
    void leereStatus();
    void zeigeTag(std::optional<basic::Date> tag);
    void zeigeKürzel();
    void zeigeHilfe();
    [[nodiscard]] std::string Hilfetext() const;
    [[nodiscard]] bool verlängere(int spalte, Wirkung& wirkung);
    [[nodiscard]] bool aufZellen(int zeile, int spalte) const;
    [[nodiscard]] bool aufBalken(int zeile, int spalte) const;
    /// Row of the plan that a line shows.
    [[nodiscard]] int Zimmernummer(int zeile) const;
    /// Why no new stay may begin on the line; empty when it may.
    [[nodiscard]] std::string Ablehnung(int zeile) const;

    // main_form_context.cpp
    void KontextAufBalken(const tplZelle& zelle);
    void KontextWartend(const tplZelle& zelle, basic::Date tag);
    [[nodiscard]] std::optional<Aufenthalt> wähleAus(const std::vector<int>& ids);
    [[nodiscard]] basic::Date TagDerZelle(int zeile, int spalte) const;
    /// False when the user cancelled.
    [[nodiscard]] bool frageBezeichnung(std::string& text);
    void führeAus(const Kontextweg& weg);
    void CheckedÄndern(int id, Check wohin);
    void zeigeStatus(int id);

    // main_form_keys.cpp
    void bewegeCursor(Plantaste taste);
    void zieheAuswahl(Plantaste taste);
    void drückeReturn();
    bool brichAb();
    void öffneKontextAmCursor();
    void zeigeCursor();

    /// Nobody has said yet whether the stay is paid.
    static constexpr std::string_view Unbekannt = "inaktiv";

    Planraster* raster_;
    const services::Clock* clock_;
    Umgebung umgebung_;
    std::unique_ptr<Zeitlog> log_;
    Auswahlzeichnung zeichnung_;
    std::string fehler_;
    std::vector<int> arten_; ///< BelegungsID of each option button
    Gegenstand ziel_;
    std::optional<Zellcursor> betreten_; ///< where the pointer was last; none: its next event counts as a new cell
    std::optional<Zellcursor> cursor_;
    int Zaehler_ = 0;            ///< minutes since the last timed refresh
    int offen_ = 0;              ///< event procedures that may have a window or a box open
    bool aktualisieren_ = false; ///< a timed refresh waits for them
    bool bewegt_ = false;        ///< the move handler runs
    bool ende_ = false;
};

} // namespace plan
