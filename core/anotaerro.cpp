#include "core/anotaerro.h"

#include "core/conversions.h"
#include "core/session.h"

void LimpaErros()
{
    session.qtErros = 1;
    session.temErros = false;
    for (auto &row : session.listaErros)
        row = {};
}

void AnotaErro(const QString &tipo, const QString &mensagem)
{
    const int row = session.qtErros - 1;  // qtErros counts from 1
    if (row < 0 || row >= int(session.listaErros.size()))
        throw RunFailure(QStringLiteral("Subscrito fora do intervalo (listaErros)"));
    session.listaErros[row] = {QString::number(session.qtErros), tipo, mensagem};
    ++session.qtErros;
}

bool temErroFatal()
{
    for (const auto &row : session.listaErros)
        if (row[1] == kErroFatal)
            return true;
    return false;
}
