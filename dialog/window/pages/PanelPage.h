#pragma once

#include <QScrollArea>
#include <QString>

namespace corvana {

/// The page that holds a panel's view. The view goes on belonging to the panel.
class PanelPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit PanelPage(QWidget *parent = nullptr);
    /// Lets go of the view, which its panel deletes.
    ~PanelPage() override;

    /// Shows the panel's view.
    void setPanelView(QWidget *view);
    /// Gives the view the larger of the height that it asks for and what its contents need. Answers
    /// the height that is missing on the page, or negative what it has too much. Units: pixels.
    int followView();
    /// Shows why there is no view.
    void setProblem(const QString &problem);

private:
    bool m_holdsPanelView = false;
};

} // namespace corvana
