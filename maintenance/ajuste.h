#pragma once
// The version and year adjustment: the data of an installation pass into the
// files of a new version. The system file's users, condominiums, events and
// chart go into the new system file (Ajustec.mdb, which then becomes
// Con000.mdb), and each condominium's file passes whole through a fresh copy
// of the template (Matrix.mdb). The old files stay as safety copies,
// Seg1207.bak and Seg11NNN.bak. See docs/maintenance.md for the order of the
// steps, which never leaves a condominium without its data.
#include <QString>
#include <QStringList>
#include <functional>

// The caption of cmdAjuste: "Ajuste Versão 1.0.0 Janeiro/2008".
QString textoAjusteVersao();
// The tables carried from each condominium's file, in order.
const QStringList &tabelasAjuste();
// The tables carried from the old system file into the new one, in order.
const QStringList &tabelasSistema();

// Where the run is, for the form's bar and labels and for habtool.
struct PassoAjuste {
    QString texto;        // "Con001.mdb: Aptos", "Con001.mdb: cópia de segurança Seg11001.bak"...
    int feitos = 0;       // condominiums done
    int total = 0;        // condominiums to do (0 while the system file is done)
};
using AvisoAjuste = std::function<void(const PassoAjuste &)>;

struct FimAjuste {
    enum Situacao { Feito, JaFeito, EmUso, Falhou } situacao = Feito;
    int numero = 0;           // Falhou: the error number
    QString arquivo;          // Falhou: the file the run stopped at; EmUso: the file held open
    QString motivo;           // Falhou: what the engine or the file system said
    QStringList ajustados;    // the files carried over, in order ("Con000.mdb", "Con001.mdb", ...)
};

// The run of cmdAjuste on the program directory dir (with its trailing '/').
// Refuses when Ajustec.mdb is absent (JaFeito) and when a connection of this
// program holds a database file of dir open (EmUso); on a failure it stops
// at that file (Falhou). Throws nothing.
FimAjuste AjustaVersao(const QString &dir, const AvisoAjuste &aviso = {});

// One condominium: arquivo ("Con001.mdb") passes into a copy of Matrix.mdb,
// which takes its name; the old file stays as seguranca ("Seg11001.bak").
// Throws FalhaArquivo; the file is then as it was.
void AjustaCondominio(const QString &dir, const QString &arquivo, const QString &seguranca,
                      const AvisoAjuste &aviso = {});

// The tool of lblFeliz: in condominium codigo's file, each unit's internal
// code takes the text its owner's e-mail column held, and the e-mail is
// emptied where a code now stands. False when the file can't be opened or a
// statement fails; the file is then as it was.
bool VinculaEmailCodigo(const QString &dir, const QString &codigo);
