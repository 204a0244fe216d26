#include "qt/form_dialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <exception>
#include <vector>

#include "qt/form_page.h"
#include "qt/message_box.h"
#include "qt/progress_pane.h"
#include "ui/failure_text.h"

namespace tessaplot::qt {

namespace {

/// A form as a dialog. It keeps nothing of the form; after every action it shows anew what the form holds.
class FormDialog : public QDialog {
 public:
    FormDialog(QWidget* parent, ui::Form& form);

    /// The form's OK and Cancel. While an action runs, Cancel stops it.
    void accept() override;
    void reject() override;

 private:
    void makePages(QVBoxLayout* column);
    void makeButtons(QVBoxLayout* column);
    void act(const std::function<void(ui::Form&)>& action);
    void run(const std::function<void(ui::Form&)>& action);
    void sync();

    ui::Form& form_;
    std::vector<FormPage*> pages_;
    QWidget* content_ = nullptr;
    QDialogButtonBox* buttons_ = nullptr;
    ProgressPane* progress_ = nullptr;  ///< Of the main window, which shows how far a long action is.
    bool acting_ = false;
};

FormDialog::FormDialog(QWidget* parent, ui::Form& form) : QDialog(parent), form_(form) {
    setObjectName(QString::fromStdString(form.name()));
    setWindowTitle(QString::fromStdString(form.caption()));
    auto* column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetFixedSize);
    makePages(column);
    makeButtons(column);
    if (QWidget* first = pages_.empty() ? nullptr : pages_.front()->firstControl()) first->setFocus();

    progress_ = parent ? parent->window()->findChild<ProgressPane*>() : nullptr;
    if (!progress_) return;
    connect(progress_, &ProgressPane::blocking, this, [this](bool blocks) {
        content_->setEnabled(!blocks);
        buttons_->button(QDialogButtonBox::Ok)->setEnabled(!blocks);
    });
}

void FormDialog::makePages(QVBoxLayout* column) {
    const FormAction action = [this](const std::function<void(ui::Form&)>& work) { act(work); };
    auto* tabs = form_.pages().size() > 1 ? new QTabWidget(this) : nullptr;
    for (const ui::Page& page : form_.pages()) {
        pages_.push_back(new FormPage(page, form_, action, tabs ? tabs : static_cast<QWidget*>(this)));
        if (tabs) tabs->addTab(pages_.back(), shownCaption(page.caption));
    }
    content_ = tabs ? tabs : pages_.empty() ? new QWidget(this) : static_cast<QWidget*>(pages_.front());
    if (!tabs) content_->layout()->setContentsMargins({});
    column->addWidget(content_);
}

void FormDialog::makeButtons(QVBoxLayout* column) {
    buttons_ = new QDialogButtonBox(this);
    QPushButton* ok = buttons_->addButton(QDialogButtonBox::Ok);
    ok->setObjectName(QString::fromStdString(form_.okName()));
    ok->setDefault(true);
    if (!form_.cancelName().empty()) {
        QPushButton* cancel = buttons_->addButton(QDialogButtonBox::Cancel);
        cancel->setObjectName(QString::fromStdString(form_.cancelName()));
        cancel->setAutoDefault(false);
    }
    connect(buttons_, &QDialogButtonBox::accepted, this, &FormDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &FormDialog::reject);
    column->addWidget(buttons_);
}

void FormDialog::accept() {
    act([](ui::Form& form) { form.accept(); });
}

void FormDialog::reject() {
    if (acting_ && progress_)
        progress_->cancel();
    else
        act([](ui::Form& form) { form.cancel(); });
}

/// Runs one action of the user. Another one that comes while it lets events run is dropped.
void FormDialog::act(const std::function<void(ui::Form&)>& action) {
    if (acting_) return;
    acting_ = true;
    run(action);
    acting_ = false;
    if (progress_) progress_->finish();
    if (form_.isOpen())
        sync();
    else
        done(QDialog::Accepted);
}

/// A failure that the form has not told itself is told here, and the dialog stays.
void FormDialog::run(const std::function<void(ui::Form&)>& action) {
    try {
        action(form_);
    } catch (const std::exception& failure) {
        if (!ui::isCancelled(failure))
            showMessage(this, {"Tessaplot", ui::failureText(failure), platform::Icon::Error});
    }
}

void FormDialog::sync() {
    for (FormPage* page : pages_)
        page->sync(form_);
}

}  // namespace

void showForm(QWidget* parent, ui::Form& form) {
    FormDialog dialog(parent, form);
    dialog.exec();
}

}  // namespace tessaplot::qt
