#pragma once
// Shared by the billing sub-commands: the condominium file is opened as the
// active file, and its directory is the program directory (Con000.mdb there
// answers the rights). Questions take their default, or yes with --sim.
#include "core/datastore.h"
#include "core/prompter.h"
#include "core/session.h"

#include <QFileInfo>
#include <QStringList>

struct ArquivoCondominio {
    Connection con;
    HeadlessPrompter prompter;
    Prompter *anterior = nullptr;

    ArquivoCondominio(const QString &arquivo, bool sim)
    {
        const QFileInfo info(arquivo);
        session.sysPath = info.absolutePath() + QLatin1Char('/');
        session.dbSenha.clear();
        session.conSistema = connectionString(session.sysPath, QStringLiteral("Con000.mdb"), QString());
        session.arqAtivo = info.fileName();
        session.conAtiva = connectionString(session.sysPath, session.arqAtivo, QString());
        prompter.yesToAll = sim;
        anterior = setPrompter(&prompter);
        con.ConnectionTimeout = 100;
        con.Open(session.conAtiva);
    }
    ~ArquivoCondominio()
    {
        if (con.State() == 1)
            con.Close();
        setPrompter(anterior);
    }
};

// Takes "--sim" out of the arguments and says whether it was there.
inline bool tiraSim(QStringList &args)
{
    return args.removeAll(QStringLiteral("--sim")) > 0;
}
