#include "shellsupport.h"

#include "core/installation.h"
#include "core/scramble.h"
#include "core/session.h"


ShellDir::ShellDir()
{
    useInSession();
    InstallationSettings s{QStringLiteral("Administradora Teste"), QStringLiteral("admin"), EmbaralhaAdm(QStringLiteral("mestre"))};
    writeInstallationSettings(path(), s);
    applyInstallationSettings(s);
    execSistema(QStringLiteral("INSERT INTO Clientes(codigo,nome,cidade,uf) VALUES(1,\"Residencial Teste\",\"Campinas\",'SP')"));
    insereUsuarios(*this);
    session.usuario.clear();
    session.empat = 0;
    session.nomeEmp.clear();
    session.conAtiva.clear();
    session.arqAtivo.clear();
    session.confirmaSaida = true;
}
