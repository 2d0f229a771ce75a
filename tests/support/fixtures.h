#pragma once
// A temporary program directory for a test: the built template databases are
// copied in, and the session is pointed at it. The build's bin/ is never touched.
#include <QString>
#include <QTemporaryDir>

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

private:
    QTemporaryDir dir_;
    QString path_;
};

// The build's program directory (bin/, with a trailing '/') and source tree.
QString builtProgramDir();
QString sourceDir();
