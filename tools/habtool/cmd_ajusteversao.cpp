// habtool ajusteversao DIR: the version and year adjustment of the program
// directory DIR, as frmAjuste runs it, one line a step.
#include "maintenance/ajuste.h"
#include "tools/habtool/habtool.h"

#include <QDir>
#include <QFileInfo>

static int cmdAjusteVersao(const QStringList &args)
{
    if (args.size() != 1)
        return kArgumentoInvalido;
    if (!QFileInfo(args[0]).isDir()) {
        err(QStringLiteral("pasta não encontrada: ") + args[0]);
        return kArgumentoInvalido;
    }
    const QString dir = QDir(args[0]).absolutePath() + u'/';
    const FimAjuste fim = AjustaVersao(dir, [](const PassoAjuste &p) {
        if (p.texto.isEmpty())
            out(QStringLiteral("CONDOMINIOS %1 de %2").arg(p.feitos).arg(p.total));
        else
            out(QStringLiteral("PASSO ") + p.texto);
        std::fflush(stdout);  // a reader (the kill test) sees each step as it is reached
    });
    switch (fim.situacao) {
    case FimAjuste::Feito:
        out(QStringLiteral("AJUSTADOS ") + fim.ajustados.join(u' '));
        err(QStringLiteral("Ajuste Finalizado !"));
        return 0;
    case FimAjuste::JaFeito:
        err(QStringLiteral("Este ajuste já foi feito !"));
        return 1;
    case FimAjuste::EmUso:
        err(QStringLiteral("arquivo em uso: ") + fim.arquivo);
        return 1;
    case FimAjuste::Falhou:
        break;
    }
    out(QStringLiteral("AJUSTADOS ") + fim.ajustados.join(u' '));
    err(QStringLiteral("Erro número %1: %2: %3").arg(fim.numero).arg(fim.arquivo, fim.motivo));
    return 1;
}

static const bool registrado = registerCommand("ajusteversao", "DIR", "ajuste de versão e de ano da instalação em DIR",
                                               cmdAjusteVersao);
