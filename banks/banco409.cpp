// Unibanco: the special wallet without registration.
#include "banks/bancos.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"

Boleto Banco409(const ReciboBanco &r, const ParametrosBanco &p)
{
    Boleto b;
    const QString cod = ZeroEsq(r.codigo, 6);
    const QString n = ZeroEsq(cod, 14);
    b.dv = Modulo11Resto(n);
    const QString base = n + b.dv;
    b.nrbco = base.left(14) + QStringLiteral("-") + b.dv;
    b.campoLivre = QStringLiteral("5") + p.convenio + QStringLiteral("00") + base;
    completaBoleto(b, QStringLiteral("409"), r);
    return b;
}
