#include "qt/message_box.h"

#include <QMessageBox>

namespace tessaplot::qt {

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

QMessageBox::Icon iconOf(Icon icon) {
    switch (icon) {
        case Icon::Warning:
            return QMessageBox::Warning;
        case Icon::Error:
            return QMessageBox::Critical;
        default:
            return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons buttonsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

}  // namespace

platform::Answer showMessage(QWidget* parent, const platform::Message& message) {
    QMessageBox box(iconOf(message.icon), QString::fromStdString(message.title), {}, buttonsOf(message.buttons),
                    parent);
    box.setObjectName("MessageBox");
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(message.text));
    switch (box.exec()) {
        case QMessageBox::Ok:
            return Answer::Ok;
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            return Answer::Cancel;
    }
}

}  // namespace tessaplot::qt
