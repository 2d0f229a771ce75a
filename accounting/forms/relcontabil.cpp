#include "accounting/forms/relcontabil.h"

#include "accounting/lancamentos.h"
#include "accounting/mensal.h"
#include "core/prompter.h"
#include "core/widgets/datefield.h"

#include <QRadioButton>
#include <QRegularExpressionValidator>

void campoMes(QLineEdit *campo)
{
    campo->setMaxLength(2);
    campo->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), campo));
}

void ligaMesOuPeriodo(QRadioButton *mensal, QRadioButton *periodo, QLineEdit *mesIni, QLineEdit *mesFin)
{
    campoMes(mesIni);
    campoMes(mesFin);
    mesFin->setEnabled(false);
    QObject::connect(mensal, &QRadioButton::clicked, mesFin, [mesIni, mesFin] {
        mesFin->clear();
        mesFin->setEnabled(false);
        mesIni->setFocus();
    });
    QObject::connect(periodo, &QRadioButton::clicked, mesFin, [mesIni, mesFin] {
        mesFin->setEnabled(true);
        mesIni->setFocus();
    });
}

QDate mesBase(Connection &cn)
{
    Recordset rs = cn.Execute(QStringLiteral("SELECT mes_movSaldfin FROM parametros where codigo = 1"));
    return rs.eof() ? QDate() : rs[QStringLiteral("mes_movsaldfin")].toDate();
}

bool mesValido(const QString &texto)
{
    const int mes = valorMes(texto);
    return mes >= 1 && mes <= 12;
}

QString anoDoRelatorio(DateField *ano)
{
    const QString texto = ano->textoMascarado();
    if (anoComPrevisao(texto))
        return texto;
    MsgBox(QStringLiteral("Indique o ano base do relatório: o plano de contas guarda os meses de 2002 a 2008 !"), vbCritical,
           QStringLiteral("Atenção..."));
    ano->selectAll();
    ano->setFocus();
    return QString();
}
