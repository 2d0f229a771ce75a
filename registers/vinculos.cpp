#include "registers/vinculos.h"

const QStringList &nomesVinculo()
{
    static const QStringList nomes{QStringLiteral("Proprietário(a)"), QStringLiteral("Inquilino(a)"),
                                   QStringLiteral("Cônjuge"),          QStringLiteral("Filho(a)"),
                                   QStringLiteral("Pai/Mãe"),          QStringLiteral("Neto(a)"),
                                   QStringLiteral("Outros")};
    return nomes;
}

QString nomeVinculo(const QString &digito)
{
    const QString d = digito.trimmed();
    if (d.size() == 1 && d[0] >= u'1' && d[0] <= u'7')
        return nomesVinculo().at(d[0].unicode() - u'1');
    return d;
}
