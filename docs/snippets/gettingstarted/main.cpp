// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

//! [program]
#include <ContainerTitleBar>
#include <OxLineEdit>
#include <OxMessageBox>
#include <OxSingleInstanceApplication>

#include <QLabel>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

class MainWindow : public QWidget
{
    Q_OBJECT

public:
    MainWindow()
    {
        // A grey panel in an orange frame, as every window and dialog of the house.
        setObjectName(QStringLiteral("MainWindow"));
        setWindowFlag(Qt::FramelessWindowHint);
        setAttribute(Qt::WA_StyledBackground);
        setStyleSheet(QStringLiteral(
            "#MainWindow { background-color: #f2f2f2; border: 1px solid #fd7800; }"));

        auto* titleBar = new ContainerTitleBar(this, tr("GREETER", "Title of the window."));
        auto* label = new QLabel(tr("Your name", "Label of a field."), this);
        m_name = new OxLineEdit(this);
        m_name->setMinimumHeight(37); // a finger's height
        label->setBuddy(m_name); // names the field for those who do not see it
        auto* button = new QPushButton(tr("Greet", "Button."), this);
        button->setMinimumHeight(37);

        auto* content = new QVBoxLayout;
        content->setContentsMargins(14, 10, 14, 12);
        content->addWidget(label);
        content->addWidget(m_name);
        content->addWidget(button);
        content->addStretch();
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(titleBar);
        layout->addLayout(content);

        connect(titleBar, &ContainerTitleBar::closeButtonClicked, this, &QWidget::close);
        connect(button, &QPushButton::clicked, this, &MainWindow::greet);
    }

private:
    void greet()
    {
        // Never markup, whatever was typed.
        const QString text = Qt::convertFromPlainText(
            tr("Hello, %1.", "A greeting.").arg(m_name->text()), Qt::WhiteSpaceNormal);
        OxMessageBox::information(this, tr("GREETING", "Title of a message."), text);
    }

    OxLineEdit* m_name = nullptr;
};

int main(int argc, char* argv[])
{
    OxSingleInstanceApplication application(argc, argv, QStringLiteral("Greeter"));
    if (!application.isOnlyInstance()) {
        return 0; // the one that runs already has come to the front
    }
    MainWindow window;
    application.setMainWidget(&window); // shows it, as large as the screen
    return OxSingleInstanceApplication::exec();
}

#include "main.moc"
//! [program]
