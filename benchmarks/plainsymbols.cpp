// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "plainsymbols.h"

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#ifdef WITH_LIBRSVG
#include <librsvg/rsvg.h>
#else
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#endif

namespace {

using Bytes = std::vector<unsigned char>;

void check(bool isRight, const char* what)
{
    if (!isRight) {
        std::fprintf(stderr, "%s failed\n", what);
        std::exit(1);
    }
}

class Database
{
public:
    Database(const char* path, int flags)
    {
        check(sqlite3_open_v2(path, &m_database, flags, nullptr) == SQLITE_OK, path);
    }
    ~Database() { sqlite3_close(m_database); }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    sqlite3_stmt* prepare(const char* statement) const
    {
        sqlite3_stmt* prepared = nullptr;
        check(sqlite3_prepare_v2(m_database, statement, -1, &prepared, nullptr) == SQLITE_OK,
              statement);
        return prepared;
    }
    void execute(const char* statement) const
    {
        check(sqlite3_exec(m_database, statement, nullptr, nullptr, nullptr) == SQLITE_OK,
              statement);
    }

private:
    sqlite3* m_database = nullptr;
};

Bytes contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>() };
}

#ifdef WITH_LIBRSVG

Bytes thumbnailOf(const Bytes& svg)
{
    constexpr int Side = 50;
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, Side, Side);
    cairo_t* painter = cairo_create(surface);
    cairo_set_source_rgb(painter, 1, 1, 1);
    cairo_paint(painter);
    RsvgHandle* drawing = rsvg_handle_new_from_data(svg.data(), svg.size(), nullptr);
    if (drawing != nullptr) {
        double width = 0;
        double height = 0;
        if (rsvg_handle_get_intrinsic_size_in_pixels(drawing, &width, &height) == 0 || width <= 0
            || height <= 0) {
            width = height = Side;
        }
        cairo_scale(painter, Side / width, Side / height);
        const RsvgRectangle all { 0, 0, width, height };
        rsvg_handle_render_document(drawing, painter, &all, nullptr);
        g_object_unref(drawing);
    }
    Bytes png;
    cairo_surface_write_to_png_stream(
        surface,
        [](void* closure, const unsigned char* data, unsigned int size) {
            auto* bytes = static_cast<Bytes*>(closure);
            bytes->insert(bytes->end(), data, data + size);
            return CAIRO_STATUS_SUCCESS;
        },
        &png);
    cairo_destroy(painter);
    cairo_surface_destroy(surface);
    return png;
}

#else

Bytes thumbnailOf(const Bytes& svg)
{
    QImage image(50, 50, QImage::Format_RGB32);
    image.fill(Qt::white);
    QSvgRenderer renderer(
        QByteArray::fromRawData(reinterpret_cast<const char*>(svg.data()), qsizetype(svg.size())));
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, 50, 50));
    painter.end();
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return { png.begin(), png.end() };
}

#endif

} // namespace

std::vector<PlainSymbol> readPlainSymbols(const char* database, const char* statement)
{
    const Database file(database, SQLITE_OPEN_READONLY);
    sqlite3_stmt* query = file.prepare(statement);
    std::vector<PlainSymbol> rows;
    while (sqlite3_step(query) == SQLITE_ROW) {
        PlainSymbol row;
        row.id = sqlite3_column_int(query, 0);
        row.name.assign(reinterpret_cast<const char*>(sqlite3_column_text(query, 1)),
                        size_t(sqlite3_column_bytes(query, 1)));
        const auto* bytes = static_cast<const unsigned char*>(sqlite3_column_blob(query, 2));
        row.thumbnail.assign(bytes, bytes + sqlite3_column_bytes(query, 2));
        rows.push_back(std::move(row));
    }
    sqlite3_finalize(query);
    return rows;
}

std::vector<std::string> readPlainNames(const char* database)
{
    const Database file(database, SQLITE_OPEN_READONLY);
    sqlite3_stmt* query = file.prepare("SELECT Name FROM Image");
    std::vector<std::string> names;
    while (sqlite3_step(query) == SQLITE_ROW) {
        names.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(query, 0)));
    }
    sqlite3_finalize(query);
    return names;
}

std::vector<std::string> listPlainly(const char* folder, bool content)
{
    std::vector<std::string> paths;
    size_t bytes = 0;
    for (const auto& category : std::filesystem::directory_iterator(folder)) {
        for (const auto& file : std::filesystem::directory_iterator(category)) {
            if (file.path().extension() == ".svg" && file.is_regular_file()) {
                paths.push_back(file.path().string());
                bytes += content ? contentOf(paths.back()).size() : 0;
            }
        }
    }
    check(!content || bytes > 0, folder);
    return paths;
}

void updatePlainly(const char* database, const char* folder)
{
    const Database file(database, SQLITE_OPEN_READWRITE);
    file.execute("BEGIN");
    file.execute("INSERT INTO Category (Name) VALUES ('all')");
    sqlite3_stmt* query = file.prepare("INSERT INTO Image (Name, Thumbnail, Data, CategoryId) "
                                       "VALUES(?, ?, ?, 1)");
    for (const std::string& path : listPlainly(folder, false)) {
        const Bytes svg = contentOf(path);
        const Bytes thumbnail = thumbnailOf(svg);
        const std::string name = path.substr(path.rfind('/') + 1);
        sqlite3_bind_text(query, 1, name.data(), int(name.size()), SQLITE_STATIC);
        sqlite3_bind_blob(query, 2, thumbnail.data(), int(thumbnail.size()), SQLITE_STATIC);
        sqlite3_bind_blob(query, 3, svg.data(), int(svg.size()), SQLITE_STATIC);
        check(sqlite3_step(query) == SQLITE_DONE, path.c_str());
        sqlite3_reset(query);
    }
    sqlite3_finalize(query);
    file.execute("COMMIT");
}

const char* plainRendererName()
{
#ifdef WITH_LIBRSVG
    return "Updating a library (peer: librsvg and sqlite3, one thread)";
#else
    return "Updating a library (peer: QSvgRenderer and sqlite3, one thread)";
#endif
}
