// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

/// Every statement that the symbol store sends to SQLite.
namespace SymbolStatements {

inline constexpr QLatin1String EnableForeignKeys("PRAGMA foreign_keys = ON");

/// The tables, in the order in which they are made. Image may refer to Category before that exists.
inline constexpr QLatin1String Schema[] {
    QLatin1String(
        R"(CREATE TABLE "Image" ( 'Id' INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT UNIQUE, 'Name' TEXT NOT NULL, 'Thumbnail' BLOB NOT NULL ,'Data' BLOB NOT NULL, 'CategoryId' INTEGER NOT NULL, FOREIGN KEY(CategoryId) REFERENCES Category(Id) ON DELETE CASCADE))"),
    QLatin1String(
        R"(CREATE TABLE "Tag" ( 'Id' INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT UNIQUE, 'Name' TEXT NOT NULL UNIQUE ))"),
    QLatin1String(
        R"(CREATE TABLE "Image_Tag" ( 'ImageId' INTEGER NOT NULL, 'TagId' INTEGER NOT NULL, PRIMARY KEY(ImageId, TagId), FOREIGN KEY(ImageId) REFERENCES Image(Id) ON DELETE CASCADE,  FOREIGN KEY(TagId) REFERENCES Tag(Id) ON DELETE CASCADE))"),
    QLatin1String(
        R"(CREATE TABLE "Category" ( 'Id' INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT UNIQUE, 'Name' TEXT NOT NULL UNIQUE ))"),
};

/// %1: the table, which cannot be bound.
inline constexpr QLatin1String IdByName("SELECT Id FROM %1 WHERE Name = :Name");
inline constexpr QLatin1String SymbolIdByName("SELECT Id FROM Image WHERE Name = :name");

inline constexpr QLatin1String SymbolNames("SELECT Name FROM Image");

inline constexpr QLatin1String AddCategory("INSERT INTO Category (Name) VALUES (:Name)");
inline constexpr QLatin1String AddTag("INSERT INTO Tag (Name) VALUES (:Name)");
inline constexpr QLatin1String AddImage("INSERT INTO Image (Name, Thumbnail, Data, CategoryId) "
                                        "VALUES(:Name, :Thumbnail, :Data, :CategoryId)");
inline constexpr QLatin1String
    LinkTag("INSERT INTO Image_Tag (ImageId, TagId) VALUES(:ImageId, :TagId)");
inline constexpr QLatin1String RemoveSymbol("DELETE FROM Image WHERE Id = :Id");

inline constexpr QLatin1String Categories("SELECT Name FROM Category");
inline constexpr QLatin1String Tags("SELECT Name FROM Tag");
inline constexpr QLatin1String DataById("SELECT Data FROM Image WHERE Id = :SymbolId");
inline constexpr QLatin1String DataByName("SELECT Data FROM Image WHERE Name = :SymbolName");
inline constexpr QLatin1String ThumbnailById("SELECT Thumbnail FROM Image WHERE Id = :SymbolId");
inline constexpr QLatin1String
    SymbolById("SELECT Name, Data, Thumbnail FROM Image WHERE Id = :SymbolId");

/// The pieces of a search, each ending in a blank.
inline constexpr QLatin1String
    Search("SELECT DISTINCT Image.Id, Image.Name, Image.Thumbnail FROM Image ");
inline constexpr QLatin1String SearchJoinsTags("INNER JOIN Image_Tag ON Image.Id=Image_Tag.ImageId "
                                               "INNER JOIN Tag ON Image_Tag.TagId=Tag.Id ");
inline constexpr QLatin1String SearchWhere("WHERE ");
inline constexpr QLatin1String SearchInCategory("Image.CategoryId = :CategoryId ");
inline constexpr QLatin1String SearchAnd("AND ");
inline constexpr QLatin1String SearchForTag("Tag.Name LIKE :Tag ");

} // namespace SymbolStatements
