#include "core/installation.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"
#include "core/session.h"

#include <QFile>
#include <QSettings>

bool fatorVencimentoCiclico = false;

namespace {
const QString kGroup = QStringLiteral("Instalacao");
}

bool readInstallationSettings(const QString &sysPath, InstallationSettings &out)
{
    const QString path = sysPath + kSettingsFile;
    if (!QFile::exists(path))
        return false;
    QSettings ini(path, QSettings::IniFormat);
    ini.beginGroup(kGroup);
    out.nomeCliente = ini.value(QStringLiteral("nomeCliente")).toString();
    out.adminLogin = ini.value(QStringLiteral("adminLogin")).toString();
    out.adminSenha = ini.value(QStringLiteral("adminSenha")).toString();
    out.fatorCiclico = ini.value(QStringLiteral("fatorVencimentoCiclico"), false).toBool();
    return true;
}

bool writeInstallationSettings(const QString &sysPath, const InstallationSettings &settings)
{
    QSettings ini(sysPath + kSettingsFile, QSettings::IniFormat);
    ini.beginGroup(kGroup);
    ini.setValue(QStringLiteral("nomeCliente"), settings.nomeCliente.trimmed());
    ini.setValue(QStringLiteral("adminLogin"), settings.adminLogin);
    ini.setValue(QStringLiteral("adminSenha"), settings.adminSenha);
    // Only ever switched on here: the installation form, which does not show
    // it, leaves a setting made by hand as it stands.
    if (settings.fatorCiclico)
        ini.setValue(QStringLiteral("fatorVencimentoCiclico"), true);
    ini.endGroup();
    ini.sync();
    return ini.status() == QSettings::NoError;
}

QString padNomeCliente(const QString &name) { return name.left(40).leftJustified(40, QLatin1Char(' ')); }

void applyInstallationSettings(const InstallationSettings &settings)
{
    session.nomeCliente = padNomeCliente(settings.nomeCliente);
    session.adminLogin = settings.adminLogin;
    session.adminSenha = settings.adminSenha;
    fatorVencimentoCiclico = settings.fatorCiclico;
}

void VerificaArquivos(const QString &sysPath)
{
    const QString fatal = QStringLiteral("Erro Fatal");
    if (!QFile::exists(sysPath + QStringLiteral("Matrix.mdb"))) {
        MsgBox(QStringLiteral("Matrix.mdb não está presente no diretório, Sistema Encerrado !"), vbCritical, fatal);
        EndProgram();
    }
    if (!QFile::exists(sysPath + QStringLiteral("Con000.mdb"))) {
        if (!QFile::exists(sysPath + QStringLiteral("Ajustec.mdb"))) {
            MsgBox(QStringLiteral("Con000.mdb não está presente no diretório, Sistema Encerrado !"), vbCritical, fatal);
            EndProgram();
        }
        const int answer = MsgBox(QStringLiteral("Trata-se da primeira instalação ?"),
                                  vbYesNo + vbCritical + vbDefaultButton2, QStringLiteral("Atenção"));
        if (answer == vbNo)
            EndProgram();
        if (!QFile::rename(sysPath + QStringLiteral("Ajustec.mdb"), sysPath + QStringLiteral("Con000.mdb"))) {
            MsgBox(QStringLiteral("Não foi possível renomear Ajustec.mdb para Con000.mdb, Sistema Encerrado !"),
                   vbCritical, fatal);
            EndProgram();
        }
    }
    session.dbSenha = QString();
    session.conSistema = connectionString(sysPath, QStringLiteral("Con000.mdb"), session.dbSenha);
}

QString nomeArquivoCondominio(int codigo)
{
    // Codes are padded to three digits; a wider code (put in the file by hand,
    // since the fields are masked "###") keeps all its digits: Con1000.mdb.
    return QStringLiteral("Con") + padZeros(QString::number(codigo), 3) + QStringLiteral(".mdb");
}

void copiaMatriz(const QString &sysPath, const QString &fileName)
{
    const QString target = sysPath + fileName;
    if (!QFile::copy(sysPath + QStringLiteral("Matrix.mdb"), target))
        throw RunFailure(QStringLiteral("Não foi possível copiar Matrix.mdb para ") + fileName);
    // The template may be delivered read-only; a condominium's file is written to.
    QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner | QFile::ReadOwner);
}

void semeiaPjuridica(const QString &connectionString)
{
    Connection cn;
    cn.ConnectionTimeout = 100;
    cn.Open(connectionString);
    cn.Execute(QStringLiteral("INSERT INTO Pjuridica(codigo,nome,tipo) VALUES(0,'(Nenhum)',0)"));
    cn.Execute(QStringLiteral("INSERT INTO Pjuridica(codigo,nome,tipo) VALUES(0,'(Nenhum)',1)"));
    cn.Close();
}
