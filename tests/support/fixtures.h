#pragma once
// A temporary program directory for a test: the built template databases are
// copied in, and the session is pointed at it. The build's bin/ is never touched.
#include <QString>
#include <QTemporaryDir>

// One statement on a database given by its connection string.
void executaSql(const QString &conexao, const QString &sql);
// The first row of a read, its columns as text joined by '|' ("a|b|c");
// "<nenhum>" when the read has no row.
QString leLinha(const QString &conexao, const QString &sql);
// Every row of a read, as leLinha() gives each, one a line ("a|b\nc|d\n").
QString leLinhas(const QString &conexao, const QString &sql);

class TempProgramDir {
public:
    // Copies Matrix.mdb and, as Con000.mdb, Ajustec.mdb from the build's bin/.
    TempProgramDir();
    // The directory with a trailing '/'.
    QString path() const { return path_; }
    QString file(const QString &name) const { return path_ + name; }
    // Copies Matrix.mdb to ConNNN.mdb and returns its connection string.
    QString makeCondominium(int code);
    // Points session.sysPath, conSistema and (for code >= 0) arqAtivo/conAtiva here.
    void useInSession(int code = -1);
    // A statement on the session's system file or active condominium file.
    void execSistema(const QString &sql) const;
    void execAtivo(const QString &sql) const;
    // The first row of a read there, as leLinha() gives it.
    QString sistema(const QString &sql) const;
    QString ativo(const QString &sql) const;

private:
    QTemporaryDir dir_;
    QString path_;
};

// Two users in the system file: "Maria" (password "segredo", every right,
// condominium 1, printer L) and "Joao" (password "abc", no right, condominium
// 0, printer M), both with the password dated 02/01/2008.
void insereUsuarios(const TempProgramDir &dir);

// The build's program directory (bin/, with a trailing '/') and source tree.
QString builtProgramDir();
QString sourceDir();
