#pragma once
// The data utilities (maintenance/utilitarios.h): safety copies of the
// installation's files to a folder, the restore of a copy over a file, the
// integrity check and the compaction, on the file selected or on all of them,
// with a bar over the files.
#include "maintenance/utilitarios.h"

#include <QWidget>
#include <functional>

class Grade;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;

class frmAjUtilitarios : public QWidget {
    Q_OBJECT
public:
    explicit frmAjUtilitarios(QWidget *parent = nullptr);

    void cmdPasta_Click();
    void cmdCopia_Click();
    void cmdRestaura_Click();
    void cmdVerifica_Click();
    void cmdCompacta_Click();

private:
    void enche();
    // The files the action is for: the selected one, or all.
    QList<ArquivoInstalacao> escolhidos() const;
    const ArquivoInstalacao *selecionado() const;
    // Runs passo on each file of lista, with the bar; passo gives the text
    // of the file's Situação column and throws FalhaArquivo on a failure.
    // Returns the number of failures, -1 when the list is empty.
    int percorre(const QString &acao, const QList<ArquivoInstalacao> &lista,
                 const std::function<QString(const ArquivoInstalacao &)> &passo);
    void situacao(const QString &arquivo, const QString &texto);
    void habilita(bool sim);

    QList<ArquivoInstalacao> arquivos_;
    Grade *tdbArquivos_;
    QRadioButton *optSelecionado_, *optTodos_;
    QLineEdit *txtPasta_;
    QLabel *lblSituacao_;
    QProgressBar *pbrArquivos_;
    QList<QPushButton *> botoes_;
};
