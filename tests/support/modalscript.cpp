#include "support/modalscript.h"

#include "core/widgets/modal.h"

#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

ModalScript::ModalScript()
{
    previous_ = setModalHandler([this](QDialog &dialog) {
        opened.push_back(dialog.objectName());
        if (steps_.empty()) {
            ADD_FAILURE() << "diálogo inesperado: " << dialog.objectName().toStdString();
            return;
        }
        Step step = steps_.front();
        steps_.pop_front();
        EXPECT_EQ(dialog.objectName(), step.name);
        if (step.act)
            step.act(dialog);
    });
}

ModalScript::~ModalScript()
{
    setModalHandler(previous_);
    for (const Step &s : steps_)
        ADD_FAILURE() << "diálogo esperado e não aberto: " << s.name.toStdString();
}

ModalScript &ModalScript::on(const QString &dialogName, Act act)
{
    steps_.push_back({dialogName, std::move(act)});
    return *this;
}

ModalScript::Act typeLogin(const QString &login, const QString &senha)
{
    return [login, senha](QDialog &d) {
        d.findChild<QLineEdit *>(QStringLiteral("txtlogin"))->setText(login);
        d.findChild<QLineEdit *>(QStringLiteral("txtsenha"))->setText(senha);
        d.findChild<QPushButton *>(QStringLiteral("cmdOk"))->click();
    };
}

ModalScript::Act clickButton(const QString &buttonName)
{
    return [buttonName](QDialog &d) {
        QPushButton *b = d.findChild<QPushButton *>(buttonName);
        ASSERT_NE(b, nullptr) << buttonName.toStdString();
        b->click();
    };
}

