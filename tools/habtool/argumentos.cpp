// Argument reading shared by the sub-commands that take options.
#include "tools/habtool/habtool.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/session.h"
#include "core/validators.h"

#include <QFileInfo>

bool leArgumentos(const QStringList &args, const QStringList &comValor, const QStringList &chaves, Argumentos &lidos)
{
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &a = args[i];
        if (comValor.contains(a)) {
            if (i + 1 >= args.size())
                return false;
            lidos.valores[a] = args[++i];
        } else if (chaves.contains(a)) {
            lidos.chaves.insert(a);
        } else if (a.startsWith(u"--")) {
            return false;
        } else {
            lidos.posicionais << a;
        }
    }
    return true;
}

namespace {
bool recusa(const QString &nome, const QString &texto, const QString &esperado)
{
    err(QStringLiteral("%1 inválido: \"%2\" (%3)").arg(nome, texto, esperado));
    return false;
}

bool soDigitos(const QString &texto)
{
    if (texto.isEmpty())
        return false;
    for (QChar c : texto)
        if (c < u'0' || c > u'9')
            return false;
    return true;
}
} // namespace

bool valorBemFormado(const QString &texto)
{
    qsizetype sep = texto.indexOf(u',');
    if (sep < 0)
        sep = texto.indexOf(u'.');
    if (sep < 0)
        return soDigitos(texto);
    const QString decimais = texto.mid(sep + 1);
    return soDigitos(texto.left(sep)) && soDigitos(decimais) && decimais.size() <= 2;
}

bool leValor(const QString &nome, const QString &texto, Money &valor)
{
    static const QString esperado = QStringLiteral("um valor como 1234,56");
    if (!valorBemFormado(texto))
        return recusa(nome, texto, esperado);
    try {
        valor = roundedMoney(Money::fromDouble(val(VirgulaPonto(texto))), 2);
    } catch (const std::overflow_error &) {
        return recusa(nome, texto, esperado);
    }
    return true;
}

bool leInteiro(const QString &nome, const QString &texto, int min, int max, int &valor)
{
    const QString esperado = QStringLiteral("um número de %1 a %2").arg(min).arg(max);
    if (!soDigitos(texto) || texto.size() > 9)
        return recusa(nome, texto, esperado);
    valor = texto.toInt();
    if (valor < min || valor > max)
        return recusa(nome, texto, esperado);
    return true;
}

bool leMes(const QString &nome, const QString &texto, int &mes)
{
    return leInteiro(nome, texto, 1, 12, mes);
}

bool leAno(const QString &nome, const QString &texto)
{
    if (texto.size() != 4 || !soDigitos(texto))
        return recusa(nome, texto, QStringLiteral("um ano como 2008"));
    return true;
}

bool leData(const QString &nome, const QString &texto, QDate &data)
{
    if (!isDateText(texto))
        return recusa(nome, texto, QStringLiteral("uma data dd/mm/aaaa"));
    data = dateFromText(texto);
    return true;
}

bool leMesAno(const QString &nome, const QString &texto)
{
    if (texto.size() != 7 || !isDateText(QStringLiteral("01/") + texto))
        return recusa(nome, texto, QStringLiteral("um mês mm/aaaa"));
    return true;
}

bool leUsuario(const QString &nome, const QString &texto)
{
    if (!NomeUsuarioValido(texto)) {
        err(QStringLiteral("%1 inválido: \"%2\" (%3)").arg(nome, texto, kNomeUsuarioInvalido));
        return false;
    }
    return true;
}

bool leDataGeracao(const Argumentos &a, QDate &data)
{
    if (!a.valores.contains(QStringLiteral("--data"))) {
        data = QDate::currentDate();
        return true;
    }
    return leData(QStringLiteral("--data"), a.valores.value(QStringLiteral("--data")), data);
}

QString conexaoDoArquivo(const QString &caminho)
{
    const QFileInfo info(caminho);
    return connectionString(info.absolutePath() + QLatin1Char('/'), info.fileName(), QString());
}

bool bancoPresente(const QString &caminho)
{
    if (!arquivoPresente(caminho))
        return false;
    if (!Connection::isSystemFile(caminho)) {
        err(QStringLiteral("não é um banco de dados do sistema: ") + QFileInfo(caminho).absoluteFilePath());
        return false;
    }
    return true;
}

bool arquivoPresente(const QString &caminho)
{
    if (QFileInfo::exists(caminho))
        return true;
    err(QStringLiteral("arquivo não encontrado: ") + QFileInfo(caminho).absoluteFilePath());
    return false;
}
