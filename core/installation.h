#pragma once
// The installation: the three settings that live outside any database, the
// database files that must be in the program directory at start, and the
// making of a condominium's file from the template.
#include <QString>

// nomeCliente, adminLogin, adminSenha and fatorVencimentoCiclico, kept in Habitarium.ini beside the
// executable. adminSenha is already scrambled by EmbaralhaAdm.
struct InstallationSettings {
    QString nomeCliente;
    QString adminLogin;
    QString adminSenha;
    // The due-date factor that restarts at 1000 from 22/02/2025 (docs/banks.md).
    bool fatorCiclico = false;
};

inline const QString kSettingsFile = QStringLiteral("Habitarium.ini");

// The installation's fatorVencimentoCiclico, set at start by
// applyInstallationSettings: the due-date factor restarts at 1000 from
// 22/02/2025 (banks/checkdigits.h). Off by default.
extern bool fatorVencimentoCiclico;

// False when sysPath has no Habitarium.ini (the first run of an installation).
bool readInstallationSettings(const QString &sysPath, InstallationSettings &out);
// Writes the file; false when it cannot be written.
bool writeInstallationSettings(const QString &sysPath, const InstallationSettings &settings);
// The client's name as the session keeps it: cut at 40 characters, blank-padded to 40.
QString padNomeCliente(const QString &name);
// Copies the settings into the session (nomeCliente padded).
void applyInstallationSettings(const InstallationSettings &settings);

// Start-up steps 5 to 8: Matrix.mdb must be there; Con000.mdb, or Ajustec.mdb
// renamed to it at a first installation. A missing file ends the program after
// its message. Sets session.dbSenha and session.conSistema.
void VerificaArquivos(const QString &sysPath);

// "Con" + the code padded to three digits + ".mdb" (code 0 is Con000.mdb, the
// system file; a code above 999 keeps its digits).
QString nomeArquivoCondominio(int codigo);
// Byte copy of Matrix.mdb to fileName in sysPath. A copy that fails is a
// RunFailure: the program cannot go on without the file.
void copiaMatriz(const QString &sysPath, const QString &fileName);
// The two (Nenhum) rows of Pjuridica, sent on a new file made at login.
void semeiaPjuridica(const QString &connectionString);
