#pragma once

#include "plan/grid.h"
#include "plan/navigation.h"
#include "plan/surroundings.h"
#include "platform/services/controls.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace plan {

/// The days of the plan that a label covers: one line, both columns included.
struct Platz {
    int Zeile = 0;
    int VonSpalte = 0;
    int BisSpalte = 0;

    bool operator==(const Platz&) const = default;
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

    /// The pointer is on this line and column of the cells; 0 or beyond the last one: beside them.
    void MouseMove(int zeile, int spalte);
    /// The pointer has left the plan.
    void MouseLeave() { MouseMove(0, 0); }
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
    int fldZimmer = 0; ///< line under the pointer; 0: none
    int fldTag = 0;    ///< column under the pointer; 0: none

    int AuswahlArt = 0; ///< BelegungsID chosen for the next new stay; 0: none
    Farbe AuswahlFarbe = 0;

private:
    /// `start` may raise at the ends of the calendar.
    void zeigeAb(const std::function<basic::Date()>& start);
    void füllBelegungsrahmen();
    void zeigeTag(std::optional<basic::Date> tag);
    void zeigeKürzel();
    void springe();

    Planraster* raster_;
    const services::Clock* clock_;
    Umgebung umgebung_;
    std::string fehler_;
    std::vector<int> arten_; ///< BelegungsID of each option button
    bool ende_ = false;
};

} // namespace plan
