#include "ui/mainwindow.h"

#include <QFile>
#include <QTextStream>

#include <optional>

namespace {

// One of the built-in texts about the program; a message and nothing if it cannot be opened.
std::optional<QString> built_in_text(const QString& name, QWidget* parent)
{
    QFile file(QStringLiteral(":/licenses/look_and_feel/") + name);
    if (file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QTextStream(&file).readAll();
    QMessageBox::critical(parent, QStringLiteral("Error"),
                          QStringLiteral("Datei %1 kann nicht geöffnet werden!").arg(name),
                          QMessageBox::Ok);
    return std::nullopt;
}

} // namespace

void MainWindow::on_action_Orvan_Information_triggered()
{
    const auto text = built_in_text(QStringLiteral("Orvan_Info.txt"), this);
    if (text) {
        QMessageBox::information(this, QStringLiteral("Orvan Wasser GmbH"), *text, QMessageBox::Ok,
                                 QMessageBox::NoButton);
    }
}

void MainWindow::on_action_Qt_Licensing_Information_triggered()
{
    QMessageBox::aboutQt(this, QStringLiteral("This product uses LGPLv3 Qt Libraries"));
}

// Deliberate: buttons and icon of the shared box stay those of its last use.
void MainWindow::on_action_LGPLv3_triggered()
{
    const auto text = built_in_text(QStringLiteral("LICENSE.LGPLv3"), this);
    if (!text)
        return;
    message_box.setDetailedText(*text);
    message_box.setWindowTitle(QStringLiteral("LICENSE.LGPLv3"));
    message_box.setText(
        QStringLiteral("Parts of Qt are licensed under LGPLv3. \n"
                       "The button Show Details will display the LGPLv3 license text"));
    message_box.exec();
}
