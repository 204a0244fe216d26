#pragma once

#include <string>
#include <vector>

#include "ui/graph_dialog.h"
#include "ui/slice_controls.h"

namespace tessaplot::ui {

/// The slices across one axis of a volume: a list of them, and the controls for one.
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
    using Slice = SliceControls::Slice;
    /// The names of the controls.
    struct Names {
        std::string list, add, addEnds, change, remove;
    };

    static Names namesFor(int axis);
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
    Names names_;
    SliceControls one_;  ///< For the slice that is selected, or the next one.
    std::vector<Slice> slices_;
};

}  // namespace tessaplot::ui
