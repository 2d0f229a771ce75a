#pragma once
// The record-form protocol shared by every register: a code field, the
// record's fields in fraDados, the command buttons and a grid of all rows.
// A register is its description (registers/registro.h) and its layout
// (frmX.ui, with the control names the description binds); it writes code
// only for the rules that go beyond the pattern, through the hooks below.
//
// Modes: 1 idle (only the code field), 2 a record shown, 3 a new record.
#include "core/datastore.h"
#include "registers/registro.h"
#include "reporting/imprime.h"

#include <QWidget>

class Grade;
class MaskEdit;
class QFrame;
class QLineEdit;
class QPushButton;

class RecordForm : public QWidget {
    Q_OBJECT
public:
    RecordForm(const Registro &registro, QWidget *parent = nullptr);
    ~RecordForm() override;

    const Registro &registro() const { return registro_; }
    int modo() const { return modo_; }
    bool novo() const { return novo_; }

    void TrocaModo(int modo);
    virtual void mskCodigo_LostFocus();
    virtual void cmdGravar_Click();
    void cmdApagar_Click();
    void cmdCancelar_Click();
    void cmdImprimir_Click();
    void cmdPesquisar_Click();
    void cmdSair_Click();
    // A move to a row of the grid: the row's code goes to the code field and is loaded.
    void tdbGrade_RowChange(int row);

    // The values the statements of the description take, by name: the code
    // and every bound control's value as its kind writes it, and what
    // valoresExtras adds.
    QHash<QString, QString> valores(const QString &codigo) const;

protected:
    // ---- For the register's constructor, after setupUi ----
    // Finds the controls by name, opens cn on the description's connection,
    // fills the grid and goes to mode 1.
    void carrega();
    QString codigoAtual() const;
    // The focus back to the code field once the current focus change has
    // settled, unless the user has gone to another window meanwhile.
    void focaCodigo();
    // The control of that name; a name the layout lacks is a fault of the form.
    QWidget *controle(const QString &nome) const;

    // ---- Lost-focus checks shared by the registers with an address ----
    // A state code that Estados does not know: the message, and the field emptied.
    static void confereUF(QLineEdit *campo);
    // A CPF or CNPJ typed: ValidaCPF/ValidaCGC say what is wrong.
    static void confereCPF(const MaskEdit *campo);
    static void confereCGC(const MaskEdit *campo);

    // ---- What a register may add to its description ----
    // The code as the register keeps it (the description's rule by default).
    virtual QString normalizaCodigo(const QString &masked) const;
    // No code was typed: empty, or of value 0 (by default). A code of letters
    // (a plate) says so by its own rule.
    virtual bool codigoVazio(const QString &codigo) const;
    // Values the statements name beyond the bound controls.
    virtual void valoresExtras(QHash<QString, QString> &valores) const { Q_UNUSED(valores); }
    // After the bound controls were loaded from the row.
    virtual void carregaExtras(const Recordset &rs) { Q_UNUSED(rs); }
    // The save's rules after the code's: the required fields by default.
    virtual void validaCampos();
    // The grid's cells of a row of the list; the first is the code.
    virtual QStringList linhaGrade(const Recordset &rs) const;
    // The print; `chave` is what chaveImpressao() gave before the save that
    // printing runs first. By default the description's report, when it has one.
    virtual void imprime(const QString &chave);
    virtual QString chaveImpressao() const { return codigoAtual(); }
    // One row of the report from the record (each column by name by default).
    virtual RowFiller linhaRelatorio() const { return {}; }
    // The first data field: the focus goes there, and its enabled state means
    // "a record in hand". The first bound control by default.
    virtual QWidget *primeiroCampo() const;
    // Puts a code back into the code field (a grid click, a search).
    virtual void poeCodigo(const QString &codigo);
    // Values the fields take in mode 1 after they are cleared.
    virtual void valoresPadrao() {}
    // After each change of mode, when the fields are enabled as the mode wants.
    virtual void modoMudou(int modo) { Q_UNUSED(modo); }
    // After the code was looked up: true stops there (the register has told
    // the user why), and the focus stays in the code field.
    virtual bool codigoRecusado(bool achou) { Q_UNUSED(achou); return false; }
    // The user answered no to the inclusion question.
    virtual void inclusaoRecusada() {}
    // Before anything of the save: false refuses it (the register has told
    // the user why), with nothing noted and nothing written.
    virtual bool podeGravar() { return true; }
    // Before the save's rules.
    virtual void antesDasRegras() {}
    // After the insert or update was sent.
    virtual void aposGravar(const QString &codigo, bool eraNovo) { Q_UNUSED(codigo); Q_UNUSED(eraNovo); }
    // The delete: its question and style, and what goes before the statement.
    virtual QString perguntaExclusao(const QString &codigo) const;
    virtual int estiloExclusao() const;
    virtual void antesDeApagar(const QString &codigo) { Q_UNUSED(codigo); }

    void closeEvent(QCloseEvent *event) override;

    Connection cn_;
    MaskEdit *mskCodigo_ = nullptr;  // the code field, whatever its name
    QFrame *fraDados_ = nullptr;
    Grade *tdbGrade_ = nullptr;
    bool novo_ = false;
    QPushButton *cmdGravar_ = nullptr, *cmdApagar_ = nullptr, *cmdCancelar_ = nullptr;
    QPushButton *cmdImprimir_ = nullptr, *cmdPesquisar_ = nullptr, *cmdSair_ = nullptr;

private:
    QString valorDe(const Campo &campo) const;
    void carregaCampo(const Campo &campo, const Recordset &rs);
    QString sql(const QString &modelo, const QString &codigo) const;
    void preencheGrade();
    int linhaDoCodigo(const QString &codigo) const;
    void voltaAoCodigo();

    const Registro &registro_;
    int modo_ = 1;
    bool achou_ = false;
    bool carregando_ = false;
};

// Every register of the system, for the checks that read all their descriptions.
QList<const Registro *> todosRegistros();
