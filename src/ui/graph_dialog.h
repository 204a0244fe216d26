#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "core/app_state.h"
#include "graphs/graph.h"
#include "ui/bound_field.h"
#include "ui/graph_addition.h"
#include "ui/panel_ranges.h"

namespace tessaplot::ui {

/// What tells the graph dialogs apart.
struct GraphDialogKind {
    int graphType;
    std::string_view form;
    std::string_view caption;
    DataNeed need;
};

/// Controls of a graph dialog with a logic of their own.
class FormPart {
 public:
    FormPart() = default;
    virtual ~FormPart() = default;
    FormPart(const FormPart&) = delete;
    FormPart& operator=(const FormPart&) = delete;

    virtual std::vector<Control> controls() const = 0;
    /// The user changed or pressed a control of the form; one that is not the part's own is left alone.
    virtual void changed(const Control& control) = 0;
    virtual void pressed(const Control& control) = 0;
    virtual void store(graphs::Cls9& graph) const = 0;
};

/// The dialog of a kind of graph: its controls are bound to the properties of a working graph. OK checks them, reads
/// the panel and adds the graph to the document; a failure is told and leaves dialog and document as they were.
class GraphForm : public Form {
 protected:
    GraphForm(core::AppState& state, const GraphDialogKind& kind);

    void addFields(std::span<const Field> fields);
    template <class Part, class... Arguments>
    Part& addPart(Arguments&&... arguments);
    /// Adds a page. Where the data are irregular, the first one ends with the choice of the gridding method.
    void layOut(Page page);
    /// A control that can be used only while one of these check boxes or option buttons is on.
    void enableBy(std::string_view control, std::vector<std::string_view> anyOf);

    /// Completes the graph from the controls that are not bound. False if the dialog has told why it cannot.
    virtual bool complete(graphs::Cls9& graph);
    /// After the graph was added.
    virtual void added(const graphs::Cls9& graph);

    void changed(Control& control) override;
    void pressed(Control& control) override;
    void ok() override;

    const platform::Desktop& desktop() const { return state_.desktop; }
    core::AppState& state() { return state_; }
    const core::AppState& state() const { return state_; }

    graphs::Cls9 draft_;                 ///< The working graph: what the controls show first.
    std::optional<PanelRanges> ranges_;  ///< Of the data in the panel when the dialog opened, if they can be read.

 private:
    struct EnableRule {
        std::string_view control;
        std::vector<std::string_view> anyOf;
    };

    void addGridding(std::vector<Frame>& frames);
    void applyEnabling();
    /// As the user has chosen it.
    data::GriddingChoice gridding() const;
    void tellFailure(const base::Failure& failure);

    core::AppState& state_;
    GraphDialogKind kind_;
    std::vector<Field> fields_;
    std::vector<std::unique_ptr<FormPart>> parts_;
    std::vector<EnableRule> rules_;
    bool working_ = false;  ///< OK runs; pending events that press it again find it busy.
};

template <class Part, class... Arguments>
Part& GraphForm::addPart(Arguments&&... arguments) {
    auto part = std::make_unique<Part>(*this, state_.desktop, std::forward<Arguments>(arguments)...);
    for (Control& control : part->controls())
        add(std::move(control));
    Part& added = *part;
    parts_.push_back(std::move(part));
    return added;
}

}  // namespace tessaplot::ui
