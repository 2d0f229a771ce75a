// Caixa Econômica Federal: wallet 00, without registration ("SR").
#include "banks/bancos.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"

Boleto Banco104(const ReciboBanco &r, const ParametrosBanco &p)
{
    Boleto b;
    const QString cod = ZeroEsq(r.codigo, 6);
    const QString cedente = ZeroEsq(doubleText(val(p.cedente)), 8);
    b.dv = Modulo11Resto(QStringLiteral("8200") + cod);
    b.nrbco = QStringLiteral("8200") + cod + b.dv;
    // The agreement goes as typed: its length is checked by the save only.
    b.campoLivre = QStringLiteral("8200") + cod + ZeroEsq(p.agencia, 4) + p.convenio + cedente;
    completaBoleto(b, QStringLiteral("104"), r);
    return b;
}
