// Safra: the number comes from a counter kept in RitauNn.
#include "banks/bancos.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"

int32_t contador422Inicial(const QString &nnr, const QString *codigoPrimeiraLinha)
{
    if (val(nnr) > 0)
        return int32_t(val(ZeroEsq(nnr, 8))) + 1;
    if (codigoPrimeiraLinha)
        return int32_t(val(*codigoPrimeiraLinha));
    return 1;
}

Boleto Banco422(const ReciboBanco &r, const ParametrosBanco &p, int32_t contador)
{
    Boleto b;
    const QString numero = QString::number(contador);
    b.dv = Modulo11Ascendente(ZeroEsq(numero, 8));
    // A counter of fewer than 8 digits gives a shorter number, and so a
    // shorter free field: left as the bank's files have always had it.
    b.nrbco = numero.left(8) + b.dv;
    b.campoLivre = QStringLiteral("70") + p.agencia + ZeroEsq(digitos(p.cedente), 9) + b.nrbco + QStringLiteral("2");
    completaBoleto(b, QStringLiteral("422"), r);
    return b;
}
