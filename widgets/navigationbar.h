// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include "utilitywidgets_export.h"

#include <QFrame>
#include <QStringList>

#include <memory>

class ClickableComboBox;
class OxLineEdit;
class QIntValidator;
class QLabel;
class QLayout;
class QPushButton;
class QStackedWidget;
class QStringListModel;

/*!
 * \brief The dark strip along a screen that pages through database records.
 *
 * From left to right: room for something of the application's own, a search, the previous record,
 * the current one's number and the next one, three zoom buttons and a close button. Use it with
 * whatever shows one record at a time.
 *
 * The bar holds no records. It says what the person wants, and shows what it is told; so answer a
 * signal by changing the record, and then call the slot:
 *
 * \code
 * auto* bar = new NavigationBar(this);
 * bar->setSearchByTerms({tr("Name", "Column."), tr("City", "Column.")});
 * bar->setRecordNumberSlot(records->rowCount() - 1); // the last index
 * bar->setCurrentRecordSlot(0);                      // the first record
 * connect(bar, &NavigationBar::nextLabelSignal, this, [this, bar] {
 *     showRecord(++m_index);
 *     bar->setCurrentRecordSlot(m_index);
 * });
 * connect(bar, &NavigationBar::closeSignal, this, &Browser::close);
 * \endcode
 *
 * All records are counted from 0 in the slots and from 1 on the screen and in
 * navigateEditSignal(). An arrow that leads nowhere is not offered; its place stays empty. The
 * whole bar needs about 900 pixels.
 */
class UTILITYWIDGETS_EXPORT NavigationBar : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(bool barEnabled READ isBarEnabled WRITE setBarEnabled)
    Q_PROPERTY(int lastRecord READ lastRecord WRITE setRecordNumberSlot)
    Q_PROPERTY(int currentRecord READ currentRecord WRITE setCurrentRecordSlot)
    Q_PROPERTY(QStringList searchByTerms READ searchByTerms WRITE setSearchByTerms)
    Q_PROPERTY(QStringList searchCompletions READ searchCompletions WRITE setSearchCompletions)
    Q_PROPERTY(QString searchPlaceholder READ searchPlaceholder WRITE setSearchPlaceholder)

public:
    explicit NavigationBar(QWidget* parent = nullptr);
    ~NavigationBar() override;

    /// What the person searches by: the text of the combo box.
    QString searchTerm() const;
    /// What the person searches for: the text of the search field.
    QString searchString() const;

    /// \name What the setters and slots below were told
    /// @{
    bool isBarEnabled() const;
    /// The index of the last record, -1 if there is none; 0 at first.
    int lastRecord() const;
    /// The index of the record shown; 0 at first.
    int currentRecord() const;
    QStringList searchByTerms() const;
    QStringList searchCompletions() const;
    QString searchPlaceholder() const;
    /// @}

    /// Shows what `layout` holds at the left end. The bar takes ownership. Null is ignored; to be
    /// called once.
    void installAddon(QLayout* layout);
    /*!
     * Shows what `layout` holds in the place of search and record navigation, which are hidden for
     * good. The bar takes ownership. Null is ignored; to be called once.
     */
    void installNavigationReplacement(QLayout* layout);

    /*!
     * Whether search and record navigation react; they do at first. Zoom and close always do.
     * The arrows of a disabled bar still look as before and can be tapped, but emit nothing.
     */
    void setBarEnabled(bool enabled);
    /// Takes the three zoom buttons away for good.
    void hideZoomButtons();

public Q_SLOTS:
    /// Tells how many records there are: `maxIndex` is the index of the last one, -1 if there is
    /// none.
    void setRecordNumberSlot(int maxIndex);
    /// Shows the number of the record with this index and offers the arrows that lead on from it.
    void setCurrentRecordSlot(int currentIndex);
    /*!
     * Replaces what can be searched by; the first of `terms` becomes the current one. Emits
     * searchTermSignal() for it, and before that with an empty text if there were other terms.
     */
    void setSearchByTerms(const QStringList& terms);
    /// Replaces what the search field offers while a person types. Upper and lower case are the
    /// same there.
    void setSearchCompletions(const QStringList& completions);
    /// Replaces the text that the empty search field shows, in every language.
    void setSearchPlaceholder(const QString& placeholder);
    /// Empties the search field. Emits nothing.
    void clearSearchString();

Q_SIGNALS:
    /// The person wants the next record. Not emitted while the bar is disabled.
    void nextLabelSignal();
    /// The person wants the previous record. Not emitted while the bar is disabled.
    void previousLabelSignal();
    /// The close button was tapped; the bar itself does nothing then.
    void closeSignal();
    /// The person searches, by Return in the search field or by the search button: for `string`,
    /// by `searchTerm`. Either may be empty.
    void searchStringSignal(const QString& searchTerm, const QString& string);
    /// Another term of those to search by became current, by the person or by setSearchByTerms();
    /// empty when there is none.
    void searchTermSignal(const QString& searchTerm);
    /*!
     * The person typed a record's number: "0" to "9999", which may be a number that no record has.
     *
     * Emitted twice for one Return, and once when the field is left after its text has changed,
     * also by setCurrentRecordSlot(): going to the record that is shown already must do no harm.
     */
    void navigateEditSignal(const QString& recordNumber);
    /// Zoom in, or else out; again and again for as long as a button is held.
    void zoomSignal(bool zoomIn);
    /// Zoom so that everything fits.
    void zoomFitSignal();

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void zoomInSlot();
    void zoomOutSlot();
    void searchSlot();
    void determineNextAndPreviousVisibility();
    void navigateEditSlot();

private:
    void retranslate();
    void showRecordCount();
    void createRecordNavigation();
    void createSearch();
    void createZoomButtons();
    void createContainers();
    void layOut();
    void followLayoutDirection();
    void orderTabs();
    void connectChildren();
    QPushButton* createArrow(const char* name);
    void connectArrows();

    // Wider than the indexes that they count from 1: a form may give the largest one.
    qint64 m_currentRecord = 1;
    qint64 m_recordCount = 1;
    bool m_isRecordCountKnown = false;
    bool m_hasOwnPlaceholder = false;
    bool m_isMirrored = false;
    // Without a parent, so it is deleted here; the field notices.
    std::unique_ptr<QIntValidator> m_recordNumberValidator;
    QLabel* m_recordCountLabel = nullptr;
    OxLineEdit* m_recordNumberField = nullptr;
    OxLineEdit* m_searchField = nullptr;
    ClickableComboBox* m_searchByCombo = nullptr;
    QStringListModel* m_completionModel = nullptr;
    QPushButton* m_searchButton = nullptr;
    QWidget* m_addonContainer = nullptr;
    QWidget* m_searchContainer = nullptr;
    QWidget* m_replacementContainer = nullptr;
    QWidget* m_zoomContainer = nullptr;
    QPushButton* m_zoomInButton = nullptr;
    QPushButton* m_zoomOutButton = nullptr;
    QPushButton* m_zoomFitButton = nullptr;
    QPushButton* m_previousButton = nullptr;
    QPushButton* m_nextButton = nullptr;
    QPushButton* m_closeButton = nullptr;
    QStackedWidget* m_nextStack = nullptr;
    QStackedWidget* m_previousStack = nullptr;
};
