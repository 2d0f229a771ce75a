#pragma once
// A script of the modal dialogs a test expects (through showModal).
#include <QDialog>
#include <QString>
#include <deque>
#include <functional>
#include <vector>

// Installed for its life: each modal dialog shown through showModal is taken
// by the next step, whose name must match the dialog's objectName. A dialog
// that no step expects, and steps left unused, fail the test.
class ModalScript {
public:
    using Act = std::function<void(QDialog &)>;
    ModalScript();
    ~ModalScript();
    ModalScript &on(const QString &dialogName, Act act);
    std::vector<QString> opened;

private:
    struct Step {
        QString name;
        Act act;
    };
    std::deque<Step> steps_;
    std::function<void(QDialog &)> previous_;
};

// Acts for the usual dialogs.
ModalScript::Act typeLogin(const QString &login, const QString &senha);
ModalScript::Act clickButton(const QString &buttonName);

