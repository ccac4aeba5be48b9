#pragma once

#include "plan/grid.h"
#include "platform/jet/workspace.h"
#include "platform/services/clock.h"

#include <memory>
#include <string>

namespace app {

/// An opened house and the plan on it.
class House {
public:
    /// Opens FOLDER/Lokal.mdb; raises jet::Error where that fails. The clock must outlive the house.
    House(const std::string& folder, const services::Clock& clock);
    House(const House&) = delete;
    House& operator=(const House&) = delete;

    [[nodiscard]] plan::Planraster& raster() { return *raster_; }

private:
    jet::Workspace workspace_;
    jet::Database main_;
    plan::PlanAusDatenbank source_;
    std::unique_ptr<plan::Planraster> raster_;
};

} // namespace app
