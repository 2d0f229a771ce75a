#include "core/forms/formcatalog.h"

#include "core/forms/frmAtImpr.h"
#include "core/forms/frmAtempr.h"
#include "core/forms/frmErros.h"
#include "core/forms/frmInstalacao.h"
#include "core/forms/frmSenha.h"
#include "core/forms/frmSobre.h"
#include "core/forms/frmSplash.h"
#include "core/forms/frmTrocasen.h"

namespace {
QList<FormEntry> &catalog()
{
    static QList<FormEntry> entries;
    return entries;
}
}

void registerForm(const QString &name, FormKind kind, std::function<QWidget *()> make)
{
    make = [name, make = std::move(make)] {
        QWidget *form = make();
        form->setObjectName(name);
        return form;
    };
    for (FormEntry &e : catalog()) {
        if (e.name == name) {
            e.kind = kind;
            e.make = std::move(make);
            return;
        }
    }
    catalog().append({name, kind, std::move(make)});
}

const FormEntry *findForm(const QString &name)
{
    for (const FormEntry &e : catalog())
        if (e.name == name)
            return &e;
    return nullptr;
}

QList<FormEntry> allForms() { return catalog(); }

void registerCoreForms()
{
    registerForm<frmSobre>(FormKind::Child);
    registerForm<frmSplash>(FormKind::Window);
    registerForm<frmSenha>(FormKind::Dialog);
    registerForm<frmAtempr>(FormKind::Dialog);
    registerForm<frmAtImpr>(FormKind::Dialog);
    registerForm<frmTrocasen>(FormKind::Dialog);
    registerForm<frmErros>(FormKind::Dialog);
    registerForm<frmInstalacao>(FormKind::Dialog);
}
