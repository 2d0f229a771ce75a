#include "registers/forms/frmPesqap.h"

#include "core/session.h"

namespace {
QString conexao()
{
    const QString tabela = session.tabPesq.toLower();
    return tabela == QLatin1String("usuarios") || tabela == QLatin1String("clientes") ? session.conSistema
                                                                                        : session.conAtiva;
}
}

frmPesqap::frmPesqap(QWidget *parent)
    : PesquisaDialog(parent, QStringLiteral("frmPesqap"), conexao(),
                     {{QStringLiteral("codigo"), QStringLiteral("Código"), true},
                      {QStringLiteral("codinterno"), QStringLiteral("Cód.Interno")},
                      {QStringLiteral("nome"), QStringLiteral("Nome")}})
{
}
