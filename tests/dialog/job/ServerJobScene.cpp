#include "tests/dialog/job/ServerJobScene.h"

#include <QFile>
#include <QTest>

namespace corvana::test {

using namespace Qt::StringLiterals;

void ServerJobScene::begin()
{
    m_server = std::make_unique<JobServer>();
    QFile file(m_folder.filePath(u"document.txt"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Hello\n");
    m_request =
        m_server->request({file.fileName(), u"application/postscript"_s, u"document.txt"_s});
    m_request.server.mayAsk = true;
    m_request.ticket.options = {{u"media"_s, u"A4"_s}};
}

JobOutcome ServerJobScene::print()
{
    ServerJob job(m_request);
    job.start();
    return job.wait();
}

} // namespace corvana::test
