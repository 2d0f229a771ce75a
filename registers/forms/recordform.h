#pragma once
// The record-form protocol shared by every register: a code field, the
// record's fields in fraDados, the command buttons and a grid of all rows.
// A register says only what differs: its table, statements, fields and rules.
//
// Modes: 1 idle (only the code field), 2 a record shown, 3 a new record.
#include "core/datastore.h"

#include <QWidget>

class MaskEdit;
class QFrame;
class QPushButton;
class QTableWidget;

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
    void cmdSair_Click();
    // A click on a row of the grid: the row's code goes to the code field and is loaded.
    void tdbGrade_RowChange(int row);

protected:
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
    // The print: statement, columns, template and title.
    virtual void imprime() {}
    // The first data field: the focus goes there, and its enabled state means
    // "a record in hand".
    virtual QWidget *primeiroCampo() const = 0;
    // The message that refuses closing with a record in hand.
    virtual QString mensagemAbandono() const;
    // Puts a code back into the code field (a grid click); blocks reset their mask here.
    virtual void poeCodigo(const QString &codigo);
    // Values the fields take in mode 1 after they are cleared.
    virtual void valoresPadrao() {}

    // ---- For the register's constructor ----
    // Builds the frame: code label and mask, data frame, buttons, grid.
    void montaTela(const QString &rotuloCodigo, const QString &mascara);
    // Opens cn on the connection string, fills the grid, mode 1.
    void carrega(const QString &connectionString);
    QString codigoAtual() const;

    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    Connection cn_;
    MaskEdit *mskCodigo_ = nullptr;
    QFrame *fraDados_ = nullptr;
    QTableWidget *tdbGrade_ = nullptr;
    QPushButton *cmdGravar_ = nullptr, *cmdApagar_ = nullptr, *cmdCancelar_ = nullptr;
    QPushButton *cmdImprimir_ = nullptr, *cmdSair_ = nullptr;

private:
    void preencheGrade();
    int linhaDoCodigo(const QString &codigo) const;
    void focaCodigo();

    int modo_ = 1;
    bool novo_ = false;
    bool achou_ = false;
    bool carregando_ = false;
};

// Clears every text, masked and check field of the container.
void LimpaCampos(QWidget &container);
// Enables or disables every field of the container: white when enabled, the
// button face when not.
void HabilitaCampos(QWidget &container, bool enabled);
// Puts a blank in every empty text field, so that no column is written empty.
void PreencheVazios(QWidget &container);
