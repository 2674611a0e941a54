#pragma once

#include <QColor>
#include <QDateTime>
#include <QFlags>
#include <QObject>
#include <QUrl>

#include <algorithm>

namespace quillgrid::qt {

/// An object with properties of many kinds, some of them obstinate.
class Person : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString name MEMBER Name NOTIFY nameChanged)
    Q_PROPERTY(int age READ age WRITE setAge NOTIFY ageChanged)
    Q_PROPERTY(bool isMember MEMBER IsMember NOTIFY isMemberChanged)
    Q_PROPERTY(double height MEMBER Height)
    Q_PROPERTY(float weight MEMBER Weight)
    Q_PROPERTY(short quota MEMBER Quota)
    Q_PROPERTY(qlonglong number MEMBER Number)
    Q_PROPERTY(qulonglong serial MEMBER Serial)
    Q_PROPERTY(QDate birthDate MEMBER BirthDate)
    Q_PROPERTY(QTime risesAt MEMBER RisesAt)
    Q_PROPERTY(QDateTime lastSeen MEMBER LastSeen)
    Q_PROPERTY(QColor favourite MEMBER Favourite)
    Q_PROPERTY(QUrl homeURL MEMBER Home)
    Q_PROPERTY(Mood mood MEMBER MoodNow NOTIFY moodChanged)
    Q_PROPERTY(Rights rights READ rights WRITE setRights)
    Q_PROPERTY(int rank READ rank WRITE setRank RESET resetRank)
    Q_PROPERTY(QString stubborn READ stubborn WRITE setStubborn)
    Q_PROPERTY(QString origin READ origin CONSTANT)
    Q_PROPERTY(QObject* friendOf MEMBER Friend)

public:
    enum Mood { Calm = 3, VeryGood = 7 };
    Q_ENUM(Mood)
    enum Right { Read = 1, Write = 2 };
    Q_DECLARE_FLAGS(Rights, Right)
    Q_FLAG(Rights)

    int age() const { return age_; }
    void setAge(int years) {
        ++Writes;
        age_ = std::min(years, 120);
        Q_EMIT ageChanged();
    }
    Rights rights() const { return RightsNow; }
    void setRights(Rights rights) { RightsNow = rights; }
    int rank() const { return rank_; }
    void setRank(int rank) { rank_ = rank; }
    void resetRank() { rank_ = -1; }
    QString stubborn() const { return QStringLiteral("no"); }
    void setStubborn(const QString&) {}
    QString origin() const { return QStringLiteral("Ulm"); }

    QString Name;
    bool IsMember = false;
    double Height = 0;
    float Weight = 0;
    short Quota = 0;
    qlonglong Number = 0;
    qulonglong Serial = 0;
    QDate BirthDate;
    QTime RisesAt;
    QDateTime LastSeen;
    QColor Favourite;
    QUrl Home;
    Mood MoodNow = Calm;
    Rights RightsNow;
    QObject* Friend = nullptr;
    int Writes = 0;

Q_SIGNALS:
    void nameChanged();
    void ageChanged();
    void isMemberChanged();
    void moodChanged();

private:
    int age_ = 0;
    int rank_ = 0;
};

} // namespace quillgrid::qt
