#include "core/forms/abrepesquisa.h"

#include "core/conversions.h"
#include "core/forms/formcatalog.h"
#include "core/session.h"
#include "core/widgets/modal.h"

#include <QDialog>
#include <memory>

bool abrePesquisa(QWidget *parent, const QString &dialogo, const QString &titulo, const QString &tabela)
{
    const FormEntry *entrada = findForm(dialogo);
    if (!entrada)
        throw RunFailure(QStringLiteral("Formulário não encontrado: ") + dialogo);
    session.tituloPesq = titulo;
    session.tabPesq = tabela;
    session.cancelaGrava = false;
    std::unique_ptr<QWidget> form(entrada->make());
    auto *dialog = qobject_cast<QDialog *>(form.get());
    if (!dialog)
        throw RunFailure(QStringLiteral("Formulário não encontrado: ") + dialogo);
    dialog->setParent(parent, Qt::Dialog);
    showModal(*dialog);
    if (session.cancelaGrava) {
        session.cancelaGrava = false;
        return false;
    }
    return true;
}
