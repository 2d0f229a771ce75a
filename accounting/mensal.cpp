#include "accounting/mensal.h"

#include "core/conversions.h"

QString colunaMes(const QString &prefixo, int mes)
{
    return prefixo + ZeroEsq(QString::number(mes), 2);
}

Money valorMensal(const Field &field)
{
    if (field.isNull())
        throw RunFailure(QStringLiteral("Uso inválido de Null"));
    return field.toMoney();
}

int valorMes(const QString &texto)
{
    return int(val(texto));
}
