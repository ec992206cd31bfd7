#include "platform/linux/DialogoCriticoLinux.h"

#include "tests/platform/BusDePrueba.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

QMessageBox *dialogoAbierto()
{
    for (QWidget *ventana : QApplication::topLevelWidgets())
        if (auto *dialogo = qobject_cast<QMessageBox *>(ventana); dialogo && dialogo->isVisible())
            return dialogo;
    return nullptr;
}

class DialogoCriticoLinuxTest : public testing::Test
{
protected:
    DialogoCriticoLinux dialogos;
    int cerrados = 0;
    QPointer<QMessageBox> dialogo;

    void SetUp() override
    {
        dialogos.mostrar("Espacio crítico", "Quedan <b>1 GB</b>.", "Entendido", [this] { ++cerrados; });
        dialogo = dialogoAbierto();
        ASSERT_TRUE(dialogo);
    }

    void esperarCierre()
    {
        EXPECT_TRUE(esperarA([&] { return !dialogo; }));
        EXPECT_EQ(cerrados, 1);
    }
};

} // namespace

TEST_F(DialogoCriticoLinuxTest, showsTheTextsAsTheyAreWithOneButton)
{
    EXPECT_EQ(dialogo->text(), QStringLiteral("Espacio crítico"));
    EXPECT_EQ(dialogo->informativeText(), QStringLiteral("Quedan <b>1 GB</b>."));
    EXPECT_EQ(dialogo->textFormat(), Qt::PlainText);
    EXPECT_EQ(dialogo->icon(), QMessageBox::Critical);
    EXPECT_FALSE(dialogo->isModal());
    ASSERT_EQ(dialogo->buttons().size(), 1);
    EXPECT_EQ(dialogo->buttons().front()->text(), QStringLiteral("Entendido"));
    EXPECT_EQ(cerrados, 0) << "it does not wait";
    dialogo->close();
    esperarCierre();
}

TEST_F(DialogoCriticoLinuxTest, theButtonClosesIt)
{
    dialogo->buttons().front()->click();
    esperarCierre();
}

TEST_F(DialogoCriticoLinuxTest, theWindowsOwnCloseCountsToo)
{
    dialogo->close();
    esperarCierre();
}
