#pragma once
// The record-form protocol shared by every register: a code field, the
// record's fields in fraDados, the command buttons and a grid of all rows.
// A register says only what differs: its table, statements, fields and rules.
//
// Modes: 1 idle (only the code field), 2 a record shown, 3 a new record.
#include "core/datastore.h"
#include "core/widgets/campos.h"

#include <QWidget>

class Grade;
class MaskEdit;
class QFrame;
class QLineEdit;
class QPushButton;

class RecordForm : public QWidget {
    Q_OBJECT
public:
    explicit RecordForm(QWidget *parent = nullptr);
    ~RecordForm() override;

    int modo() const { return modo_; }
    bool novo() const { return novo_; }

    void TrocaModo(int modo);
    void mskCodigo_LostFocus();
    void cmdGravar_Click();
    void cmdApagar_Click();
    void cmdCancelar_Click();
    void cmdImprimir_Click();
    void cmdPesquisar_Click();
    void cmdSair_Click();
    // A move to a row of the grid: the row's code goes to the code field and is loaded.
    void tdbGrade_RowChange(int row);

protected:
    // ---- Lost-focus checks shared by the registers with an address ----
    // A state code that Estados does not know: the message, and the field emptied.
    static void confereUF(QLineEdit *campo);
    // A CPF or CNPJ typed: ValidaCPF/ValidaCGC say what is wrong.
    static void confereCPF(const MaskEdit *campo);
    static void confereCGC(const MaskEdit *campo);

    // ---- What a register gives ----
    // The code as the register keeps it, from the masked text; empty when no code was typed.
    virtual QString normalizaCodigo(const QString &masked) const = 0;
    virtual QString sqlBusca(const QString &codigo) const = 0;    // the row of a code
    virtual QString sqlExiste(const QString &codigo) const = 0;   // the save's duplicate test
    virtual QString sqlContagem() const = 0;                      // "... Count(x) As I ..."
    virtual QString sqlLista() const = 0;                         // the grid, in key order
    virtual QString sqlInsert(const QString &codigo) const = 0;
    virtual QString sqlUpdate(const QString &codigo) const = 0;
    virtual QString sqlDelete(const QString &codigo) const = 0;
    virtual void carregaCampos(const Recordset &rs) = 0;
    // The register's own rules, after the common ones (AnotaErro).
    virtual void validaCampos() {}
    // The grid's cells of a row of sqlLista(); the first is the code.
    virtual QStringList linhaGrade(const Recordset &rs) const = 0;
    virtual QStringList titulosGrade() const = 0;
    // True when the code is a number (sorted and searched as one in the grid).
    virtual bool codigoNumerico() const { return false; }
    // The print of the record or list; `chave` is what chaveImpressao() gave
    // before the save that printing runs first.
    virtual void imprime(const QString &chave) { Q_UNUSED(chave); }
    virtual QString chaveImpressao() const { return codigoAtual(); }
    // The first data field: the focus goes there, and its enabled state means
    // "a record in hand".
    virtual QWidget *primeiroCampo() const = 0;
    // The message that refuses closing with a record in hand.
    virtual QString mensagemAbandono() const;
    // The common rule on the code's value.
    virtual QString mensagemCodigoInvalido() const;
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
    // Before the save's rules.
    virtual void antesDasRegras() {}
    // After the insert or update was sent.
    virtual void aposGravar(const QString &codigo, bool eraNovo) { Q_UNUSED(codigo); Q_UNUSED(eraNovo); }
    // The delete: its question and style, and what goes before the statement.
    virtual QString perguntaExclusao(const QString &codigo) const;
    virtual int estiloExclusao() const;
    virtual void antesDeApagar(const QString &codigo) { Q_UNUSED(codigo); }

    // The search of cmdPesquisar: the dialog's name, its title and table.
    // A register without a search leaves the dialog empty.
    struct Pesquisa {
        QString dialogo, titulo, tabela;
        int largura = 0;  // the code's width for ZeroEsq (0: as it comes)
    };
    virtual Pesquisa pesquisa() const { return {}; }

    // ---- For the register's constructor ----
    // Builds the frame: code label and field, data frame, buttons, grid.
    // With a mask ("###") the code field is the masked mskCodigo; without,
    // a text field txtCodigo that takes up to `digitos` digits.
    void montaTela(const QString &rotuloCodigo, const QString &mascara, int digitos = 0);
    // Opens cn on the connection string, fills the grid, mode 1.
    void carrega(const QString &connectionString);
    QString codigoAtual() const;
    // The focus back to the code field once the current focus change has settled.
    void focaCodigo();

    void closeEvent(QCloseEvent *event) override;

    Connection cn_;
    MaskEdit *mskCodigo_ = nullptr;  // the code field, whatever its name
    QFrame *fraDados_ = nullptr;
    Grade *tdbGrade_ = nullptr;
    QPushButton *cmdGravar_ = nullptr, *cmdApagar_ = nullptr, *cmdCancelar_ = nullptr;
    QPushButton *cmdImprimir_ = nullptr, *cmdPesquisar_ = nullptr, *cmdSair_ = nullptr;

private:
    void preencheGrade();
    int linhaDoCodigo(const QString &codigo) const;
    void voltaAoCodigo();

    int modo_ = 1;
    bool novo_ = false;
    bool achou_ = false;
    bool carregando_ = false;
};
