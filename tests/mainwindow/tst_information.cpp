#include "tests/support/modal_answer.h"
#include "tests/support/modal_boxes.h"
#include "tests/support/read_file.h"
#include "tests/support/window_driver.h"

#include <QAction>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

// These macros cannot stand inside of a namespace.
static void remove_resources()
{
    Q_CLEANUP_RESOURCE(korimo);
}

static void bring_resources_back()
{
    Q_INIT_RESOURCE(korimo);
}

namespace {

QList<shown_box> trigger(const window_driver& driver, const char* action)
{
    const modal_boxes boxes;
    driver.window.findChild<QAction*>(action)->trigger();
    return boxes.shown();
}

constexpr const char* licence_path = ":/licenses/look_and_feel/LICENSE.LGPLv3";

} // namespace

class tst_information : public QObject
{
    Q_OBJECT

private slots:
    void information();
    void information_names_what_it_should();
    void about_qt();
    void licence();
    void licence_twice();
    void licence_unfolded();
    void licence_keeps_what_the_box_had();
    void licence_after_a_selection_error();
    void selection_error_after_the_licence();
    void without_the_texts_data();
    void without_the_texts();
    void parents_of_the_boxes_data();
    void parents_of_the_boxes();
};

void tst_information::information()
{
    const window_driver driver;
    const QList<shown_box> boxes = trigger(driver, "actionOrvan_Information");
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0].title, "Orvan Wasser GmbH");
    QCOMPARE(boxes[0].text, read_text(":/licenses/look_and_feel/Orvan_Info.txt"));
    QCOMPARE(boxes[0].buttons, QMessageBox::Ok);
    QCOMPARE(boxes[0].icon, QMessageBox::Information);
    QVERIFY(boxes[0].was_modal);
}

void tst_information::information_names_what_it_should()
{
    const QString text = read_text(":/licenses/look_and_feel/Orvan_Info.txt");
    for (const char* words : {"Orvan Wasser GmbH", "plot_korimo, Version " PROJECT_VERSION "\n",
                              "Fragen, Wünsche", "plot_korimo@orvan-wasser.example"})
        QVERIFY2(text.contains(words), words);
}

void tst_information::about_qt()
{
    const window_driver driver;
    const QList<shown_box> boxes = trigger(driver, "actionQt_Licensing_Information");
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0].title, "This product uses LGPLv3 Qt Libraries");
    QVERIFY(boxes[0].text.contains(qVersion()));
}

void tst_information::licence()
{
    const window_driver driver;
    const QList<shown_box> boxes = trigger(driver, "actionLGPLv3");
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0].title, "LICENSE.LGPLv3");
    QCOMPARE(boxes[0].text, "Parts of Qt are licensed under LGPLv3. \n"
                            "The button Show Details will display the LGPLv3 license text");
    QCOMPARE(boxes[0].detailed_text, read_text(licence_path));
    QVERIFY(boxes[0].detailed_text.startsWith("                   GNU LESSER GENERAL PUBLIC"));
    QCOMPARE(boxes[0].informative_text, "");
    QCOMPARE(boxes[0].icon, QMessageBox::NoIcon);
    QVERIFY(boxes[0].was_modal);
}

void tst_information::licence_twice()
{
    const window_driver driver;
    const QList<shown_box> first = trigger(driver, "actionLGPLv3");
    const QList<shown_box> second = trigger(driver, "actionLGPLv3");
    QCOMPARE(second.size(), 1);
    QCOMPARE(second[0].title, first[0].title);
    QCOMPARE(second[0].text, first[0].text);
    QCOMPARE(second[0].detailed_text, first[0].detailed_text);
    QCOMPARE(second[0].object, first[0].object);
}

void tst_information::licence_unfolded()
{
    const window_driver driver;
    bool unfolded = false;
    QString shown_text;
    const modal_answer<QMessageBox> user([&](QMessageBox& box) {
        auto* const details = box.findChild<QTextEdit*>();
        QVERIFY(details && !details->isVisible());
        const auto buttons = box.buttons();
        for (QAbstractButton* button : buttons) {
            if (box.buttonRole(button) != QMessageBox::AcceptRole)
                QTest::mouseClick(button, Qt::LeftButton);
        }
        unfolded = details->isVisible();
        shown_text = details->toPlainText();
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    driver.window.findChild<QAction*>("actionLGPLv3")->trigger();
    QCOMPARE(user.count(), 1);
    QVERIFY(unfolded);
    QCOMPARE(shown_text, read_text(licence_path));
}

// The shared box keeps what another command gave it.
void tst_information::licence_keeps_what_the_box_had()
{
    window_driver driver;
    const modal_boxes boxes;
    shared_box()->setIcon(QMessageBox::Warning);
    shared_box()->setStandardButtons(QMessageBox::Yes);
    driver.window.findChild<QAction*>("actionLGPLv3")->trigger();
    QCOMPARE(boxes.shown()[0].buttons, QMessageBox::Yes);
    QCOMPARE(boxes.shown()[0].icon, QMessageBox::Warning);
}

void tst_information::licence_after_a_selection_error()
{
    window_driver driver;
    const modal_boxes boxes;
    driver.window.findChild<QAction*>("actionLGPLv3")->trigger();
    driver.press(driver.button); // without a file: sets icon and buttons
    driver.window.findChild<QAction*>("actionLGPLv3")->trigger();
    QCOMPARE(boxes.shown().size(), 3);
    QVERIFY(!boxes.shown()[0].own_window_icon);
    QVERIFY(boxes.shown()[2].own_window_icon);
    QCOMPARE(boxes.shown()[2].buttons, QMessageBox::Ok);
    QCOMPARE(boxes.shown()[2].object, boxes.shown()[0].object);
}

void tst_information::selection_error_after_the_licence()
{
    window_driver driver;
    const modal_boxes boxes;
    driver.window.findChild<QAction*>("actionLGPLv3")->trigger();
    driver.press(driver.button);
    QVERIFY(is_selection_error(boxes.shown()[1]));
    driver.add("x_K.wel", "");
    driver.window.findChild<QAction*>("actionLGPLv3")->trigger();
    driver.press(driver.remove); // nothing is selected
    QVERIFY(is_selection_error(boxes.shown()[3]));
}

void tst_information::without_the_texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("actionOrvan_Information") << "Datei Orvan_Info.txt kann nicht geöffnet werden!";
    QTest::newRow("actionLGPLv3") << "Datei LICENSE.LGPLv3 kann nicht geöffnet werden!";
}

void tst_information::without_the_texts()
{
    QFETCH(QString, text);
    const window_driver driver;
    remove_resources();
    const QList<shown_box> boxes = trigger(driver, QTest::currentDataTag());
    bring_resources_back();
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes[0].title, "Error");
    QCOMPARE(boxes[0].text, text);
    QCOMPARE(boxes[0].buttons, QMessageBox::Ok);
    QCOMPARE(boxes[0].icon, QMessageBox::Critical);
    QVERIFY(boxes[0].was_modal && boxes[0].has_parent);
}

void tst_information::parents_of_the_boxes_data()
{
    QTest::addColumn<bool>("has_parent");
    QTest::newRow("actionOrvan_Information") << true;
    QTest::newRow("actionQt_Licensing_Information") << true;
    QTest::newRow("actionLGPLv3") << false;
}

void tst_information::parents_of_the_boxes()
{
    QFETCH(bool, has_parent);
    const window_driver driver;
    const QWidget* parent = nullptr;
    const modal_answer<QMessageBox> user([&](QMessageBox& box) {
        parent = box.parentWidget();
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    driver.window.findChild<QAction*>(QTest::currentDataTag())->trigger();
    QCOMPARE(user.count(), 1);
    QCOMPARE(parent == &driver.window, has_parent);
}

QTEST_MAIN(tst_information)
#include "tst_information.moc"
