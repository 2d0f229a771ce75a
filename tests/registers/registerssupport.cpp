#include "registerssupport.h"

#include "core/datastore.h"
#include "core/forms/formcatalog.h"
#include "core/session.h"
#include "registers/forms/frmPesqGeral.h"
#include "registers/forms/frmPesqap.h"
#include "registers/forms/frmPesquisa.h"

#include <QDir>
#include <QFile>
#include <QApplication>
#include <QTest>

StatementLog::StatementLog()
{
    setStatementListener([this](const QString &sql) { sent << sql; });
}

StatementLog::~StatementLog() { setStatementListener({}); }

QStringList StatementLog::startingWith(const QString &prefix) const
{
    QStringList out;
    for (const QString &s : sent)
        if (s.startsWith(prefix, Qt::CaseInsensitive))
            out << s;
    return out;
}

RegistersDir::RegistersDir()
{
    makeCondominium(1);
    useInSession(1);
    // The report templates, as in a program directory.
    const QDir reports(sourceDir() + QStringLiteral("reports"));
    for (const QString &name : reports.entryList({QStringLiteral("*.rpt")}, QDir::Files))
        QFile::copy(reports.filePath(name), file(name));
    session.usuario = QStringLiteral("Administrador");
    session.cancelaGrava = false;
    session.valorPesq.clear();
    execSistema(QStringLiteral("INSERT INTO Clientes(codigo,nome,cidade,uf) VALUES(1,\"Residencial Teste\",\"Campinas\",'SP')"));
    registerForm<frmPesquisa>(FormKind::Dialog);
    registerForm<frmPesqGeral>(FormKind::Dialog);
    registerForm<frmPesqap>(FormKind::Dialog);
}

void mostra(QWidget &form)
{
    form.show();
    form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
}

void saiDoCampo(QWidget &form, const char *name)
{
    if (!form.isActiveWindow())
        mostra(form);
    auto *campo = get<QWidget>(form, name);
    campo->setFocus();
    QApplication::processEvents();
    QTest::keyClick(campo, Qt::Key_Tab);
    QApplication::processEvents();
}
