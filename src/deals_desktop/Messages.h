#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <string>
#include <vector>

namespace deals_desktop {

// What was told, the last line in sight; chosen lines can be copied.
class Messages final : public QListView {
public:
    Messages();

    // In the window's own words.
    void add(const QString& text);
    // As the readers and the import tell it, in front of which that word may stand ("%1"); put into Dutch when it is
    // seen.
    struct Told {
        std::string reason{};
        QString around{};  // empty, or with "%1" for the reason
    };
    void add(std::vector<Told> told);
    int count() const { return lines_.rowCount({}); }
    QString text(int line) const { return lines_.data(lines_.index(line), Qt::DisplayRole).toString(); }
    void copy() const;

private:
    class Lines final : public QAbstractListModel {
    public:
        int rowCount(const QModelIndex& parent) const override;
        QVariant data(const QModelIndex& index, int role) const override;
        void add(std::vector<Told> told);

    private:
        std::vector<Told> told_;
    };
    Lines lines_;
};

}  // namespace deals_desktop
