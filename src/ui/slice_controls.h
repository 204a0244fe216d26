#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "graphs/graph.h"
#include "platform/desktop.h"
#include "ui/form.h"
#include "ui/panel_ranges.h"

namespace tessaplot::ui {

/// The controls for one slice across an axis of a volume: its position, its look and its limits.
class SliceControls {
 public:
    using Slice = graphs::SliceSet::Slice;

    /// `axis` is 0 for X, 1 for Y, 2 for Z; `ranges`, which may be null, outlives the controls.
    SliceControls(Form& form, const platform::Desktop& desktop, int axis, const PanelRanges* ranges);

    std::vector<Control> controls() const;
    /// Where they stand.
    std::vector<Frame> frames() const;

    /// The user changed or pressed a control of the form, this slice's or another.
    void changed(const Control& control);
    void pressed(const Control& control);

    void show(const Slice& slice);
    /// Takes what the user set. False, after a message, if the controls hold what cannot be.
    bool read(Slice& slice) const;
    bool readAllButPosition(Slice& slice) const;

    std::string_view axisName() const;
    /// The range of the data along the axis, if it is known.
    std::optional<Range> span() const;

 private:
    /// The names of the controls.
    struct Names {
        std::string position, slider, interval, color, contours, vectors, contourColor, vectorColor;
        std::array<std::string, 4> limits;
    };

    static Names namesFor(int axis);
    std::vector<Control> lookControls() const;
    std::vector<Control> placeControls() const;
    std::vector<Control> limitControls() const;
    int nodesAlong(int limit) const;
    bool readPosition(Slice& slice) const;
    bool readLook(Slice& slice) const;
    bool readLimits(Slice& slice) const;

    Form& form_;
    const platform::Desktop& desktop_;
    int axis_;
    const PanelRanges* ranges_;
    Names names_;
};

/// The name of a control: its kind with its number among those of the kind.
std::string numbered(std::string_view kind, int number);

}  // namespace tessaplot::ui
