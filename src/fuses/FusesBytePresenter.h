#pragma once

#include "app/record/FuseByte.h"

#include <QObject>
#include <QPointer>
#include <QVector>

class FuseMeanings;
class FusesByteModel;
class FusesByteView;
class QCheckBox;
class QMenu;

/// Keeps the check boxes, the hexadecimal field and the record of one fuse byte in step, and what is told about them.
/// Lives as long as the byte's editor, which owns view and model too.
class FusesBytePresenter : public QObject
{
    Q_OBJECT

public:
    FusesBytePresenter(FusesByteView& view, FusesByteModel& model, const FuseMeanings& meanings,
                       QObject* parent = nullptr);

    /// Shows the record @p byte, which is the model's: its name, its identifier and its bits.
    void setModel(const FuseByte& byte);

    /// Puts @p value into the byte as far as its bits may be changed, and shows the result.
    void setByte(quint32 value);

    /// Shows the byte again.
    void show();

    /// Tells again what is known of the byte's meanings.
    void showMeanings();

    /// From now on nothing is shown or taken any more: the byte may go before the widgets do.
    void release();

    /// Takes the keys of the hexadecimal field: digits overwrite what is there, and the byte follows at once.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void showBits();
    void showValue();
    void onBitChanged(const QVector<QCheckBox*>& fusesBit, QCheckBox* checkBox);
    void typeDigit(QChar digit);
    void offerSettings(int number, const QPoint& position);

    FusesByteView& m_view;
    FusesByteModel& m_model;
    const FuseMeanings& m_meanings;
    QPointer<QMenu> m_settings; ///< while it is open
};
