#include "core/widgets/endereco.h"

#include "core/conversions.h"
#include "core/prompter.h"
#include "core/validators.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"

#include <QLineEdit>

namespace {
template <class T>
T *campo(QWidget &form, const char *nome)
{
    auto *w = form.findChild<T *>(QString::fromLatin1(nome));
    if (!w)
        throw RunFailure(form.objectName() + QStringLiteral(": controle não encontrado: ") + QString::fromLatin1(nome));
    return w;
}
}

void ligaEndereco(QWidget &form, const RegrasEndereco &regras)
{
    auto *uf = campo<QLineEdit>(form, "txtUf");
    auto *cep = campo<MaskEdit>(form, "mskCep");
    for (const char *nome : {"txtEndereco", "txtNumero", "txtComplemento", "txtBairro", "txtCidade"})
        campo<QLineEdit>(form, nome);
    aoPerderFoco(uf, [uf, regras] {
        if (uf->text().trimmed().isEmpty() || ValidaUF(uf->text()))
            return;
        MsgBox(regras.mensagemUF, vbCritical, regras.tituloUF);
        uf->clear();
    });
    if (regras.limpaCepZerado) {
        aoPerderFoco(cep, [cep] {
            if (cep->textoMascarado() == QLatin1String("00000-000"))
                cep->clear();
        });
    }
}
