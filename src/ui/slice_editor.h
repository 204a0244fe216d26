#pragma once

#include <array>
#include <string>
#include <vector>

#include "ui/graph_dialog.h"

namespace tessaplot::ui {

/// The slices across one axis of a volume: a list, and controls for the position, the looks and the limits of a slice.
class SliceEditor : public FormPart {
 public:
    /// `axis` is 0 for X, 1 for Y, 2 for Z; `ranges`, which may be null, outlives the editor.
    SliceEditor(Form& form, const platform::Desktop& desktop, int axis, const PanelRanges* ranges);

    Page page() const;

    std::vector<Control> controls() const override;
    void changed(const Control& control) override;
    void pressed(const Control& control) override;
    void store(graphs::Cls9& graph) const override;

    /// Gives the graph a slice through the middle of the data with what the controls say; none if the range of the data
    /// is not known. False, after a message, if the controls hold what cannot be.
    bool storeMiddle(graphs::Cls9& graph) const;

 private:
    using Slice = graphs::SliceSet::Slice;
    /// The names of the controls.
    struct Names {
        std::string list, position, slider, interval, color, contours, vectors, contourColor, vectorColor;
        std::array<std::string, 4> limits;
        std::string add, addEnds, change, remove;
    };

    static Names namesFor(int axis);
    std::vector<Control> lookControls() const;
    std::vector<Control> placeControls() const;
    std::optional<Range> span() const;
    int nodesAlong(int limit) const;
    bool readLook(Slice& slice) const;
    bool readLimits(Slice& slice) const;
    bool readPosition(Slice& slice) const;
    bool hasRoomFor(std::size_t more) const;
    bool hasSelection() const;
    void add();
    void addEnds();
    void change();
    void remove();
    void showList(int selected);
    void showSelected();
    std::string describe(const Slice& slice) const;

    Form& form_;
    const platform::Desktop& desktop_;
    int axis_;
    const PanelRanges* ranges_;
    Names names_;
    std::vector<Slice> slices_;
};

}  // namespace tessaplot::ui
