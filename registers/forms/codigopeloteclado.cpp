#include "registers/forms/codigopeloteclado.h"

#include "registers/forms/recordform.h"

#include <QKeyEvent>

namespace {
class Filtro : public QObject {
public:
    Filtro(RecordForm &form, QWidget &codigo) : QObject(&codigo), form_(form) {}

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress || form_.modo() != 1)
            return false;
        const int tecla = static_cast<QKeyEvent *>(event)->key();
        if (tecla != Qt::Key_Tab && tecla != Qt::Key_Return && tecla != Qt::Key_Enter)
            return false;
        form_.mskCodigo_LostFocus();
        return true;
    }

private:
    RecordForm &form_;
};
}

void codigoPeloTeclado(RecordForm &form, QWidget &codigo) { codigo.installEventFilter(new Filtro(form, codigo)); }
