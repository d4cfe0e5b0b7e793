// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>

class CTexts;
class QGridLayout;

/// The values of a section of settings that its filter fields show; they must outlive the fields.
struct FileFilterValues
{
    bool &useFilter;
    bool &useMinimum;
    int &minimum;
    bool &useMaximum;
    int &maximum;
    QString &language1;
    QString &language2;
    QString &author;
    QString &comments;

    template<class Section>
    static FileFilterValues Of(Section &values)
    {
        return {values.useFilter, values.useMiniValue, values.miniValue, values.useMaxValue, values.maxValue,
            values.lang1, values.lang2, values.author, values.comments};
    }
};

/// The filter that import and file search have in common. Its fields can be used while the filter is.
class CFileFilterFields : public QWidget
{
    Q_OBJECT

public:
    /// `addFields` may add rows of its own, of two columns, between the numbers and the texts.
    CFileFilterFields(const CTexts &texts, const FileFilterValues &values, QWidget *parent,
        const std::function<void(QGridLayout &rows, QWidget *page)> &addFields = {});

private:
    void AddNumber(QGridLayout &rows, QWidget *page, const char *name, int caption, bool &use, int &value);
    void AddText(QGridLayout &rows, QWidget *page, int column, const char *name, int caption, QString &value);

    const CTexts &m_texts;
};
