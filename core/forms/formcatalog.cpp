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
    registerForm<frmSobre>(QStringLiteral("frmSobre"), FormKind::Child);
    registerForm<frmSplash>(QStringLiteral("frmSplash"), FormKind::Window);
    registerForm<frmSenha>(QStringLiteral("frmSenha"), FormKind::Dialog);
    registerForm<frmAtempr>(QStringLiteral("frmAtempr"), FormKind::Dialog);
    registerForm<frmAtImpr>(QStringLiteral("frmAtImpr"), FormKind::Dialog);
    registerForm<frmTrocasen>(QStringLiteral("frmTrocasen"), FormKind::Dialog);
    registerForm<frmErros>(QStringLiteral("frmErros"), FormKind::Dialog);
    registerForm<frmInstalacao>(QStringLiteral("frmInstalacao"), FormKind::Dialog);
}
