#include "LearnerTransfer.h"

#include "AddUserDialog.h"
#include "CharacterDatabase.h"
#include "ConfigStore.h"
#include "LearnerFile.h"
#include "LearnerSession.h"
#include "LearningHistory.h"
#include "Prompt.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>

LearnerTransfer::LearnerTransfer(
    CharacterDatabase& database, ConfigStore& store, LearningHistory& history, Prompt& prompt, QWidget* parent)
    : m_database(database), m_store(store), m_history(history), m_prompt(prompt), m_parent(parent)
{
}

LearnerTransfer::LearnerTransfer(CharacterDatabase& database, LearnerSession& session, Prompt& prompt, QWidget* parent)
    : LearnerTransfer(database, session.Store(), session.History(), prompt, parent)
{
}

void LearnerTransfer::Keep(User& learner)
{
    // The history first: the events it takes leave the record, which is then written without them.
    m_history.Replace(learner);
    m_store.SaveUser(learner);
}

void LearnerTransfer::Refuse(const QString& title, const QString& text)
{
    m_prompt.Ask(m_parent, QMessageBox::Warning, title, text);
}

QString LearnerTransfer::SuggestedPath(const User& learner)
{
    // The learner's name as a file name: a slash would name a folder.
    QString name = QString::fromUtf8(learner.Name() ? learner.Name() : "");
    name.replace(QLatin1Char('/'), QLatin1Char('-'));
    return QDir::home().filePath(name + QStringLiteral(".zavoren-learner.xml"));
}

void LearnerTransfer::ExportAsked(User* learner)
{
    if (!learner)
        return;
    const QString path = QFileDialog::getSaveFileName(
        m_parent, tr("Export learner"), SuggestedPath(*learner), tr("Zavoren! learners (*.xml);;All files (*)"));
    if (!path.isEmpty())
        Export(*learner, path);
}

LearnerTransfer::Outcome LearnerTransfer::ImportAsked(const std::string& openName)
{
    const QString path = QFileDialog::getOpenFileName(
        m_parent, tr("Import learner"), QDir::homePath(), tr("Zavoren! learners (*.xml);;All files (*)"));
    if (path.isEmpty())
        return {};
    return Import(path, openName);
}

bool LearnerTransfer::Export(User& learner, const QString& path)
{
    if (LearnerFile::Export(
            QFile::encodeName(path).toStdString(), learner, m_history.Events(learner), m_database.CategoryCount()))
        return true;
    Refuse(tr("Export learner"),
        tr("The learner could not be written to \"%1\". Nothing was changed.").arg(QDir::toNativeSeparators(path)));
    return false;
}

LearnerTransfer::Outcome LearnerTransfer::Import(const QString& path, const std::string& openName)
{
    const QString shown = QDir::toNativeSeparators(path);
    LearnerFile::Imported file = LearnerFile::Import(QFile::encodeName(path).toStdString(), m_database);
    QString refusal;
    switch (file.problem) {
    case LearnerFile::Problem::None: break;
    case LearnerFile::Problem::CannotRead: refusal = tr("The file \"%1\" cannot be read.").arg(shown); break;
    case LearnerFile::Problem::NotAnExport:
        refusal = tr("\"%1\" is not a learner exported by Zavoren!.").arg(shown);
        break;
    case LearnerFile::Problem::Damaged: refusal = tr("The learner file \"%1\" is damaged.").arg(shown); break;
    case LearnerFile::Problem::OtherDatabase:
        refusal = tr("The learner file \"%1\" was written with a character database of %2 categories; this one has %3.")
                      .arg(shown)
                      .arg(file.fileCategories)
                      .arg(m_database.CategoryCount());
        break;
    }
    if (!refusal.isEmpty()) {
        Refuse(tr("Import learner"), refusal + QLatin1Char(' ') + tr("Nothing was imported."));
        return {};
    }
    User& learner = *file.learner;
    const std::string name = learner.Name() ? learner.Name() : "";
    if (m_store.HasUser(name)) {
        const auto answer = m_prompt.Ask(m_parent, QMessageBox::Question, tr("Import learner"),
            tr("A learner named \"%1\" already exists. Replace their record with the imported one?\n\n"
               "Yes replaces it; No imports the learner under another name.")
                .arg(QString::fromStdString(name)),
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel);
        if (answer == QMessageBox::Yes) {
            Keep(learner);
            Outcome outcome{true, nullptr};
            if (name == openName)
                outcome.replacedOpen = std::move(file.learner);
            return outcome;
        }
        if (answer != QMessageBox::No)
            return {};
    }
    // A free name is added as it is; a taken one (or one the store cannot hold) is replaced by
    // one the learner chooses.
    if (m_store.HasUser(name) || !m_store.AddUser(name)) {
        const std::string chosen = AddLearnerByName(m_store, m_prompt, m_parent, QString::fromStdString(name));
        if (chosen.empty())
            return {};
        learner.SetName(chosen);
    }
    Keep(learner);
    return {true, nullptr};
}
