#pragma once

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The choice of a colour map with its picture, and the editor of a ramp of one's own: up to 31 stops from 0 to 100
/// percent, each with a colour.
class ColorMapEditor : public FormPart {
 public:
    /// `fillOption` is the option button that stands for the colour map fill; any choice here turns it on. Empty for a
    /// graph that is always filled so.
    ColorMapEditor(Form& form, const platform::Desktop& desktop, std::string_view fillOption = {});

    /// Where the controls stand.
    static Page page();

    std::vector<Control> controls() const override;
    void changed(const Control& control) override;
    void pressed(const Control& control) override;
    void store(graphs::Cls9& graph) const override;

 private:
    struct Stop {
        double position = 0;
        base::PackedColor color = 0;
    };

    bool isCustom() const;
    void loadNamed();
    std::vector<Item> stopItems() const;
    void showStops(int selected);
    void showSelected();
    void turnOn();
    int selected() const;
    void addStop();
    void moveStop();
    void removeStop();
    void recolorStop();
    void replaceStops(const std::vector<Stop>& stops, int selected);
    std::vector<Stop> stops() const;
    bool tellIf(bool refused, std::string_view message) const;

    Form& form_;
    const platform::Desktop& desktop_;
    std::string_view fillOption_;
    graphs::Cls9 ramp_;  ///< Holds the stops.
};

/// The colour at a share, from 0 to 1, of the graph's ramp.
base::PackedColor colorOnRamp(const graphs::Cls9& graph, double share);

}  // namespace tessaplot::ui
