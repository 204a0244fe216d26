#pragma once

#include <array>
#include <optional>

#include "core/app_state.h"
#include "ui/form.h"
#include "ui/scale_page.h"

namespace tessaplot::ui {

/// The axis dialog: the axis frame, how the data are scaled into the scene, and whether legends show.
class frmF3 : public Form {
 public:
    explicit frmF3(core::AppState& state);

    /// The typefaces of the numbers and of the titles as they were chosen. The picture has its own.
    const std::array<platform::FontChoice, 2>& fonts() const { return fonts_; }

 protected:
    void changed(Control& control) override;
    void pressed(Control& control) override;
    void ok() override;
    void dismissed() override;

 private:
    /// What the dialog sets.
    struct Settings {
        scene::Cls3 axis;
        data::Scaling scaling;
        bool showLegend = true;
    };

    void addFramePage();
    void addPanelsPage();
    void addGridsPage();

    void enableWhatCounts();
    bool framed() const;
    std::optional<Settings> readSettings();
    void copyPanels(scene::Cls3& axis) const;
    void copyGrids(scene::Cls3& axis) const;
    bool copyIntervals(scene::Cls3& axis);
    void copyTitles(scene::Cls3& axis) const;
    void apply(Settings wanted);
    static bool scaleAlike(const data::Scaling& one, const data::Scaling& other);
    data::ClsData filledAnew(data::Scaling& scaling) const;

    core::AppState& state_;
    ScalePage scales_;
    std::array<platform::FontChoice, 2> fonts_;
};

}  // namespace tessaplot::ui
