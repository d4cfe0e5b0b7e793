// SPDX-License-Identifier: MIT
#include "shell/ui/language_dialog.h"

#include "platform/plain_text.h"
#include "platform/ui/label.h"

#include <QBitmap>
#include <QBuffer>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int PictureSize = 16;

/// The picture of a module with black as what is not there; empty when it is no small PNG file.
QPixmap MakePicture(const QByteArray &png)
{
    if (png.isEmpty()) {
        return {};
    }
    QBuffer buffer;
    buffer.setData(png);
    QImageReader reader(&buffer, "png");
    const QSize size = reader.size(); // Known before anything is unpacked.
    if (size != QSize(PictureSize, PictureSize)) {
        return {};
    }
    QPixmap picture = QPixmap::fromImage(reader.read());
    if (!picture.isNull()) {
        picture.setMask(picture.createMaskFromColor(Qt::black));
    }
    return picture;
}

QLabel *MakeLine(QWidget *parent, const char *name)
{
    QLabel *const label = MakeWrappedLabel({}, parent);
    label->setObjectName(QLatin1StringView(name));
    return label;
}

}

CLanguageDialog::CLanguageDialog(CLanguageChoice &choice, QWidget *parent)
    : QDialog(parent), m_choice(choice), m_question(MakeLine(this, "question")), m_list(new QListWidget(this)),
      m_confirmation(MakeLine(this, "confirmation")), m_ok(new QPushButton(this)),
      m_cancel(new QPushButton(this))
{
    setWindowModality(Qt::WindowModal);
    m_list->setObjectName(QStringLiteral("languages"));
    m_list->setIconSize({PictureSize, PictureSize});
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMinimumSize(fontMetrics().averageCharWidth() * 50, fontMetrics().lineSpacing() * 6);
    m_ok->setObjectName(QStringLiteral("okButton"));
    m_ok->setDefault(true);
    m_cancel->setObjectName(QStringLiteral("cancelButton"));
    FillList();

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_question);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_confirmation);
    layout->addLayout(buttons);

    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) {
            m_choice.Select(row);
            ShowChoice();
        }
    });
    connect(m_list, &QListWidget::itemActivated, this, [this] {
        if (m_choice.CanAccept()) {
            accept();
        }
    });
    ShowChoice();
    m_list->setFocus();
}

void CLanguageDialog::FillList()
{
    for (int row = 0; row < m_choice.Entries().size(); ++row) {
        auto *item = new QListWidgetItem(m_choice.RowText(row), m_list);
        const QPixmap picture = MakePicture(m_choice.Entries().at(row).picture);
        if (!picture.isNull()) {
            item->setIcon(QIcon(picture));
        }
        item->setToolTip(m_choice.RowText(row));
    }
    m_list->setCurrentRow(m_choice.Selected());
    m_list->scrollToItem(m_list->currentItem());
}

void CLanguageDialog::ShowChoice()
{
    const LanguageEntry &words = m_choice.Words();
    setWindowTitle(words.caption);
    m_question->setText(words.question);
    m_list->setAccessibleName(words.list);
    m_confirmation->setText(m_choice.Confirmation());
    m_ok->setText(words.ok);
    m_cancel->setText(words.cancel);
    m_ok->setEnabled(m_choice.CanAccept());
}
