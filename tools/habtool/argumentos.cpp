// Argument reading shared by the sub-commands that take options.
#include "tools/habtool/habtool.h"

#include "core/conversions.h"
#include "core/session.h"

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

bool leDataGeracao(const Argumentos &a, QDate &data)
{
    if (!a.valores.contains(QStringLiteral("--data"))) {
        data = QDate::currentDate();
        return true;
    }
    const QString texto = a.valores.value(QStringLiteral("--data"));
    if (!isDateText(texto)) {
        err(QStringLiteral("data inválida: ") + texto);
        return false;
    }
    data = dateFromText(texto);
    return true;
}

QString conexaoDoArquivo(const QString &caminho)
{
    const QFileInfo info(caminho);
    return connectionString(info.absolutePath() + QLatin1Char('/'), info.fileName(), QString());
}

bool arquivoPresente(const QString &caminho)
{
    if (QFileInfo::exists(caminho))
        return true;
    err(QStringLiteral("arquivo não encontrado: ") + QFileInfo(caminho).absoluteFilePath());
    return false;
}
