#include "shellsupport.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/installation.h"
#include "core/session.h"
#include "core/widgets/modal.h"

#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

ModalScript::ModalScript()
{
    previous_ = setModalHandler([this](QDialog &dialog) {
        opened.push_back(dialog.objectName());
        if (steps_.empty()) {
            ADD_FAILURE() << "diálogo inesperado: " << dialog.objectName().toStdString();
            return;
        }
        Step step = steps_.front();
        steps_.pop_front();
        EXPECT_EQ(dialog.objectName(), step.name);
        if (step.act)
            step.act(dialog);
    });
}

ModalScript::~ModalScript()
{
    setModalHandler(previous_);
    for (const Step &s : steps_)
        ADD_FAILURE() << "diálogo esperado e não aberto: " << s.name.toStdString();
}

ModalScript &ModalScript::on(const QString &dialogName, Act act)
{
    steps_.push_back({dialogName, std::move(act)});
    return *this;
}

ModalScript::Act typeLogin(const QString &login, const QString &senha)
{
    return [login, senha](QDialog &d) {
        d.findChild<QLineEdit *>(QStringLiteral("txtlogin"))->setText(login);
        d.findChild<QLineEdit *>(QStringLiteral("txtsenha"))->setText(senha);
        d.findChild<QPushButton *>(QStringLiteral("cmdOk"))->click();
    };
}

ModalScript::Act clickButton(const QString &buttonName)
{
    return [buttonName](QDialog &d) {
        QPushButton *b = d.findChild<QPushButton *>(buttonName);
        ASSERT_NE(b, nullptr) << buttonName.toStdString();
        b->click();
    };
}

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
