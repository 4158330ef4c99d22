// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "filedialogfavorites.h"

#include <QSettings>

#include <algorithm>

namespace {

using Favorite = FileDialogFavorites::Favorite;

/// One element of the array.
struct Element
{
    int index;
    Favorite favorite;
};

const QString Group = QStringLiteral("fileDialog");
const QString Array = QStringLiteral("links");
const QString NameKey = QStringLiteral("name");
const QString PathKey = QStringLiteral("path");

/// The elements that are there, by index. Goes by the keys: the size that the settings tell may
/// have been written by hand, and be two thousand million.
QList<Element> readElements(QSettings& settings)
{
    QList<Element> elements;
    settings.beginGroup(Group);
    settings.beginGroup(Array);
    const int size = settings.value(QStringLiteral("size")).toInt();
    const QStringList numbers = settings.childGroups();
    for (const QString& number : numbers) {
        const int place = number.toInt(); // counted from 1
        if (place < 1 || place > size || number != QString::number(place)) {
            continue;
        }
        settings.beginGroup(number);
        const Favorite favorite { settings.value(NameKey).toString(),
                                  settings.value(PathKey).toString() };
        settings.endGroup();
        if (favorite.isComplete()) {
            elements.append({ place - 1, favorite });
        }
    }
    settings.endGroup();
    settings.endGroup();
    std::sort(elements.begin(), elements.end(),
              [](const Element& a, const Element& b) { return a.index < b.index; });
    return elements;
}

int sizeOfArray(QSettings& settings)
{
    settings.beginGroup(Group);
    const int size = settings.beginReadArray(Array);
    settings.endArray();
    settings.endGroup();
    return std::max(size, 0);
}

void writeElements(QSettings& settings, const QList<Element>& elements, int size)
{
    settings.beginGroup(Group);
    settings.beginWriteArray(Array, size);
    for (const Element& element : elements) {
        settings.setArrayIndex(element.index);
        settings.setValue(NameKey, element.favorite.name);
        settings.setValue(PathKey, element.favorite.path);
    }
    settings.endArray();
    settings.endGroup();
}

} // namespace

QList<FileDialogFavorites::Favorite> FileDialogFavorites::load()
{
    QSettings settings;
    QList<Favorite> favorites;
    const QList<Element> elements = readElements(settings);
    for (const Element& element : elements) {
        favorites.append(element.favorite);
        m_known.insert(element.favorite.path);
    }
    return favorites;
}

void FileDialogFavorites::store(int index, const Favorite& favorite)
{
    QSettings settings;
    QList<Element> written { { index, favorite } };
    const QList<Element> elements = readElements(settings);
    // The end is behind the last element: the size may have been written by hand.
    int end = std::max(elements.isEmpty() ? 0 : elements.constLast().index + 1, index + 1);
    for (const Element& element : elements) {
        if (element.index == index && element.favorite.path != favorite.path) {
            written.append({ end++, element.favorite });
        }
    }
    writeElements(settings, written, std::max(sizeOfArray(settings), end));
    m_known.insert(favorite.path);
}

void FileDialogFavorites::rewrite(QList<Favorite> favorites)
{
    QSettings settings;
    const QList<Element> elements = readElements(settings);
    for (const Element& element : elements) {
        if (!m_known.contains(element.favorite.path)) {
            favorites.append(element.favorite);
        }
    }

    QList<Element> written;
    m_known.clear();
    for (int index = 0; index < int(favorites.size()); ++index) {
        const Favorite& favorite = favorites.at(index);
        if (favorite.isComplete()) {
            written.append({ index, favorite });
            m_known.insert(favorite.path);
        }
    }
    settings.remove(Group + QLatin1Char('/') + Array);
    writeElements(settings, written, int(favorites.size()));
}
