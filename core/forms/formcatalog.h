#pragma once
// The forms the menu can open, by the system's form name. The catalog is the
// one place that names a form: an entry's name is its class's name, and the
// catalog gives it to every form it makes as the object name. Each
// subsystem's forms are added in one place (app/formcatalog.cpp); a name that
// is not in it yet makes the menu say that the function is not available.
#include <QList>
#include <QString>
#include <QWidget>
#include <functional>

enum class FormKind {
    Child,   // a non-modal child of the main window (a QWidget)
    Dialog,  // a modal dialog (a QDialog), shown through showModal
    Window,  // a window of its own (frmSplash)
};

struct FormEntry {
    QString name;
    FormKind kind = FormKind::Child;
    std::function<QWidget *()> make;
};

// Adds or replaces the entry of a name. The form made is named `name`.
void registerForm(const QString &name, FormKind kind, std::function<QWidget *()> make);
// nullptr when the form is not built yet.
const FormEntry *findForm(const QString &name);
// Every entry, in the order added.
QList<FormEntry> allForms();
// Adds the forms of core/forms (login, activation, about, errors...).
void registerCoreForms();

// Adds a form class under its own name: registerForm<frmBlocos>(FormKind::Child).
template <class Form>
void registerForm(FormKind kind)
{
    static_assert(QtPrivate::HasQ_OBJECT_Macro<Form>::Value, "a form class carries Q_OBJECT: its name is the form's");
    registerForm(QString::fromLatin1(Form::staticMetaObject.className()), kind,
                 [] { return static_cast<QWidget *>(new Form); });
}
