#include "shellsupport.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/installation.h"
#include "core/scramble.h"
#include "core/session.h"
#include "core/widgets/modal.h"

#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

ShellDir::ShellDir()
{
    useInSession();
    InstallationSettings s{QStringLiteral("Administradora Teste"), QStringLiteral("admin"), EmbaralhaAdm(QStringLiteral("mestre"))};
    writeInstallationSettings(path(), s);
    applyInstallationSettings(s);
    execSistema(QStringLiteral("INSERT INTO Clientes(codigo,nome,cidade,uf) VALUES(1,\"Residencial Teste\",\"Campinas\",'SP')"));
    execSistema(QStringLiteral("INSERT INTO Usuarios(codigo,nome,senha,dsenha,impressora,empat,bdcon,bdadi,bdexc,bdalt,"
                               "cfcon,cfadi,cfexc,cfalt,cfbai) VALUES(1,\"Maria\",\"")
                + EmbaralhaSenha(QStringLiteral("segredo"))
                + QStringLiteral("\",'02/01/2008','L',1,True,True,True,True,True,True,True,True,True)"));
    execSistema(QStringLiteral("INSERT INTO Usuarios(codigo,nome,senha,dsenha,impressora,empat,bdcon,bdadi,bdexc,bdalt,"
                               "cfcon,cfadi,cfexc,cfalt,cfbai) VALUES(2,\"Joao\",\"")
                + EmbaralhaSenha(QStringLiteral("abc"))
                + QStringLiteral("\",'02/01/2008','M',0,False,False,False,False,False,False,False,False,False)"));
    session.usuario.clear();
    session.empat = 0;
    session.nomeEmp.clear();
    session.conAtiva.clear();
    session.arqAtivo.clear();
    session.confirmaSaida = true;
}

void ShellDir::execSistema(const QString &sql)
{
    Connection cn;
    cn.Open(session.conSistema);
    cn.Execute(sql);
    cn.Close();
}

QString ShellDir::querySistema(const QString &sql, const QString &column)
{
    Connection cn;
    cn.Open(session.conSistema);
    Recordset rs = cn.Execute(sql);
    const QString value = rs.eof() ? QStringLiteral("<eof>") : rs[column].text();
    rs.Close();
    cn.Close();
    return value;
}
