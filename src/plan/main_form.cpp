#include "plan/main_form.h"

#include "platform/basic/format.h"
#include "platform/jet/error.h"

namespace plan {

using basic::Format;

void frmMain::Form_Load() { subZeigeDatum(StandardStart(clock_->today())); }

void frmMain::subZeigeDatum(basic::Date start) {
    try {
        raster_->subZeigeDatum(start, raster_->AnzahlTage());
        fehler_.clear();
    } catch (const jet::Error& error) {
        fehler_ = error.text();
    }
}

void frmMain::Navigation_Click(const Navigation& button) {
    subZeigeDatum(NeuerPlanStart(button, raster_->PlanStart(), clock_->today()));
}

void frmMain::ScrollBar_Change(int position) {
    const int vorher = raster_->ErsteZeile();
    raster_->setErsteZeile(position + 1);
    subZeigeDatum(raster_->PlanStart()); // rows off the screen were never drawn into cells
    if (!fehler_.empty()) raster_->setErsteZeile(vorher);
}

void frmMain::cmdErster_Click() { ScrollBar_Change(0); }

void frmMain::cmdLetzter_Click() { ScrollBar_Change(ScrollBarMax()); }

std::string frmMain::Caption() const { return raster_->Einstellungen().strTitel + " Version 4.10"; }

std::string frmMain::Zeitraum() const {
    const auto erster = raster_->PlanStart();
    const auto letzter = raster_->Datum(raster_->AnzahlTage());
    const bool einJahr = Format(erster, "yyyy") == Format(letzter, "yyyy");
    return Format(erster, einJahr ? "d. mmmm" : "d. mmmm yyyy") + " – " + Format(letzter, "d. mmmm yyyy");
}

} // namespace plan
