#include "roteiro.h"

#include <QHash>
#include <Qt>

namespace {
// Command name and the number of its arguments.
const QHash<QString, int> &aridades()
{
    static const QHash<QString, int> a{
        {QStringLiteral("login"), 2}, {QStringLiteral("menu"), 1},   {QStringLiteral("toolbar"), 1},
        {QStringLiteral("form"), 1},  {QStringLiteral("type"), 2},   {QStringLiteral("key"), 2},
        {QStringLiteral("clear"), 1}, {QStringLiteral("click"), 1},  {QStringLiteral("tab"), 2},
        {QStringLiteral("choose"), 2}, {QStringLiteral("row"), 2},   {QStringLiteral("cell"), 4},
        {QStringLiteral("answer"), 1}, {QStringLiteral("file"), 1},  {QStringLiteral("show"), 1},
        {QStringLiteral("grid"), 1},  {QStringLiteral("close"), 0},  {QStringLiteral("wait"), 0},
        {QStringLiteral("open"), 1},  {QStringLiteral("dblclick"), 1},
    };
    return a;
}

bool divide(const QString &linha, QStringList &partes, QString &motivo)
{
    qsizetype i = 0;
    const qsizetype n = linha.size();
    while (true) {
        while (i < n && linha[i].isSpace())
            ++i;
        if (i >= n)
            return true;
        QString parte;
        if (linha[i] == u'"') {
            ++i;
            bool fechou = false;
            while (i < n) {
                const QChar c = linha[i++];
                if (c == u'"') {
                    fechou = true;
                    break;
                }
                if (c == u'\\' && i < n && (linha[i] == u'"' || linha[i] == u'\\'))
                    parte += linha[i++];
                else
                    parte += c;
            }
            if (!fechou) {
                motivo = QStringLiteral("aspas sem fim");
                return false;
            }
            if (i < n && !linha[i].isSpace()) {
                motivo = QStringLiteral("falta um espaço depois das aspas");
                return false;
            }
        } else {
            while (i < n && !linha[i].isSpace())
                parte += linha[i++];
        }
        partes << parte;
    }
}

bool inteiro(const QString &texto, int minimo, int maximo, int &valor)
{
    bool ok = false;
    valor = texto.toInt(&ok);
    return ok && valor >= minimo && valor <= maximo;
}
}

int teclaPorNome(const QString &nome)
{
    static const QHash<QString, int> nomes{
        {QStringLiteral("Tab"), Qt::Key_Tab},         {QStringLiteral("Enter"), Qt::Key_Return},
        {QStringLiteral("Escape"), Qt::Key_Escape},   {QStringLiteral("Backspace"), Qt::Key_Backspace},
        {QStringLiteral("Delete"), Qt::Key_Delete},   {QStringLiteral("Up"), Qt::Key_Up},
        {QStringLiteral("Down"), Qt::Key_Down},       {QStringLiteral("PgUp"), Qt::Key_PageUp},
        {QStringLiteral("PgDown"), Qt::Key_PageDown},
    };
    if (auto it = nomes.constFind(nome); it != nomes.constEnd())
        return *it;
    int f = 0;
    if (nome.size() >= 2 && nome[0] == u'F' && inteiro(nome.mid(1), 1, 12, f))
        return Qt::Key_F1 + f - 1;
    if (nome.size() == 1)
        return nome[0].toUpper().unicode();
    return 0;
}

bool leRoteiro(const QString &texto, QList<Comando> &comandos, int &linhaErro, QString &motivo)
{
    const QStringList linhas = texto.split(u'\n');
    for (int n = 0; n < linhas.size(); ++n) {
        QString linha = linhas[n];
        if (linha.endsWith(u'\r'))
            linha.chop(1);
        const QString limpa = linha.trimmed();
        if (limpa.isEmpty() || limpa.startsWith(u'#'))
            continue;
        linhaErro = n + 1;
        QStringList partes;
        if (!divide(linha, partes, motivo))
            return false;
        Comando c;
        c.linha = n + 1;
        c.nome = partes.takeFirst();
        c.args = partes;
        const auto aridade = aridades().constFind(c.nome);
        if (aridade == aridades().constEnd()) {
            motivo = QStringLiteral("comando desconhecido: ") + c.nome;
            return false;
        }
        if (c.args.size() != *aridade) {
            motivo = QStringLiteral("%1 pede %2 argumento(s), há %3").arg(c.nome).arg(*aridade).arg(c.args.size());
            return false;
        }
        int v = 0;
        if (c.nome == QLatin1String("toolbar") && !inteiro(c.args[0], 1, 14, v))
            motivo = QStringLiteral("o botão da barra vai de 1 a 14");
        else if ((c.nome == QLatin1String("tab") || c.nome == QLatin1String("row")) && !inteiro(c.args[1], 1, 1000000, v))
            motivo = QStringLiteral("o número começa em 1");
        else if (c.nome == QLatin1String("cell") && (!inteiro(c.args[1], 1, 1000000, v) || !inteiro(c.args[2], 1, 1000, v)))
            motivo = QStringLiteral("linha e coluna começam em 1");
        else if (c.nome == QLatin1String("key") && !teclaPorNome(c.args[1]))
            motivo = QStringLiteral("tecla desconhecida: ") + c.args[1];
        if (!motivo.isEmpty())
            return false;
        comandos << c;
    }
    return true;
}
