#pragma once
// The findings of a save (session.listaErros). With a fatal one the user can
// only acknowledge; with warnings only he chooses whether the save goes on.
// cancelaGrava tells the form that asked.
#include <QDialog>

class QLabel;
class QPushButton;
class QTableWidget;

class frmErros : public QDialog {
    Q_OBJECT
public:
    explicit frmErros(QWidget *parent = nullptr);
    // For findings that stop the save whatever is answered: only OK, with
    // this line in place of the question.
    void semEscolha(const QString &mensagem);

private:
    QTableWidget *tdbErros_;
    QLabel *lblMensagem_;
    QPushButton *cmdOk_, *cmdSim_, *cmdNao_;
};
