#include "Diagnosis.h"
#include "Errors.h"

#include <gtest/gtest.h>

using namespace qf;

// Real failures, as npm, curl and tar print them, each read as the cause a person can act on.
TEST(Diagnosis, RealOutputsAreReadAsTheirCause)
{
    struct Case {
        const char* output;
        std::optional<FailureCause> cause;
    };
    const Case cases[] = {
        {"npm ERR! code EACCES\nnpm ERR! syscall mkdir\nnpm ERR! path /usr/lib/node_modules/@google\n"
         "npm ERR! errno -13\nnpm ERR! Error: EACCES: permission denied, mkdir '/usr/lib/node_modules/@google'\n",
         FailureCause::permissionDenied},
        {"npm error code ENOTFOUND\nnpm error syscall getaddrinfo\nnpm error errno ENOTFOUND\nnpm error network "
         "request to https://registry.npmjs.org/@openai%2fcodex failed, reason: getaddrinfo ENOTFOUND "
         "registry.npmjs.org\n",
         FailureCause::offline},
        {"npm ERR! code ETIMEDOUT\nnpm ERR! errno ETIMEDOUT\nnpm ERR! network request to "
         "https://registry.npmjs.org/@google%2fgemini-cli failed, reason: connect ETIMEDOUT 104.16.3.35:443\n",
         FailureCause::timedOut},
        {"npm ERR! code SELF_SIGNED_CERT_IN_CHAIN\nnpm ERR! errno SELF_SIGNED_CERT_IN_CHAIN\nnpm ERR! request to "
         "https://registry.npmjs.org/@openai%2fcodex failed, reason: self-signed certificate in certificate chain\n",
         FailureCause::secureConnection},
        {"npm ERR! code EBADENGINE\nnpm ERR! engine Unsupported engine\nnpm ERR! engine Not compatible with your "
         "version of node/npm: @google/gemini-cli@0.61.0\nnpm ERR! notsup Required: {\"node\":\">=20\"}\n"
         "npm ERR! notsup Actual:   {\"npm\":\"9.2.0\",\"node\":\"v18.19.0\"}\n",
         FailureCause::nodeTooOld},
        {"npm ERR! code E404\nnpm ERR! 404 Not Found - GET https://registry.npmjs.org/@google%2fgemini-clii - Not "
         "found\nnpm ERR! 404\nnpm ERR! 404  '@google/gemini-clii@*' is not in this registry.\n",
         FailureCause::notFound},
        {"npm ERR! code ENOSPC\nnpm ERR! syscall write\nnpm ERR! errno -28\nnpm ERR! nospc ENOSPC: no space left on "
         "device, write\nnpm ERR! nospc There appears to be insufficient space on your system to finish.\n",
         FailureCause::diskFull},
        // A warning about the engine does not hide the error that stopped the install.
        {"npm WARN EBADENGINE Unsupported engine {\nnpm ERR! code EACCES\nnpm ERR! Error: EACCES: permission denied\n",
         FailureCause::permissionDenied},
        {"curl: (6) Could not resolve host: claude.ai\n", FailureCause::offline},
        {"curl: (7) Failed to connect to nodejs.org port 443 after 3 ms: Couldn't connect to server\n",
         FailureCause::unreachable},
        {"curl: (18) transfer closed with 1043243 bytes remaining to read\n", FailureCause::cutOff},
        {"curl: (28) Operation timed out after 30001 milliseconds with 0 bytes received\n", FailureCause::timedOut},
        {"curl: (60) SSL certificate problem: unable to get local issuer certificate\n",
         FailureCause::secureConnection},
        {"curl: (22) The requested URL returned error: 404\n", FailureCause::notFound},
        {"tar: node-v22.11.0-linux-x64/bin/node: Cannot write: No space left on device\n", FailureCause::diskFull},
        {"rm: cannot remove '/usr/local/bin/node': Permission denied\n", FailureCause::permissionDenied},
        {"Error: something nobody foresaw\n", std::nullopt},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.output);
        EXPECT_EQ(recogniseFailure(QString::fromUtf8(c.output)), c.cause);
    }
}

// What the screen shows: the cause's sentence, or the last line that says something; the
// status and the whole output stay in the full description, for the log.
TEST(Diagnosis, TheScreenGetsOneSentenceAndTheLogEverything)
{
    const ShellError offline = ShellError::failed(6, QStringLiteral("curl: (6) Could not resolve host: nodejs.org"));
    EXPECT_EQ(offline.plainDescription(), failureSentence(FailureCause::offline));
    EXPECT_EQ(offline.errorDescription(),
              QStringLiteral("Command failed with exit code 6: curl: (6) Could not resolve host: nodejs.org"));

    // A streamed command's output went to the log; its end still names the cause.
    const ShellError streamed = ShellError::failed(243, QStringLiteral("Command failed"),
                                                   QStringLiteral("npm ERR! code EACCES\n"));
    EXPECT_EQ(streamed.plainDescription(), failureSentence(FailureCause::permissionDenied));
    EXPECT_EQ(ServiceError(streamed).plainDescription(), failureSentence(FailureCause::permissionDenied));
    EXPECT_EQ(ServiceError(streamed).errorDescription(),
              QStringLiteral("Command failed with exit code 243: Command failed"));

    // Nothing recognised: the last meaningful line, past npm's bare markers and stack frames.
    EXPECT_EQ(plainFailure(QStringLiteral("npm ERR! Something odd happened\nnpm ERR!\n    at Foo (x.js:1)\n\n")),
              QStringLiteral("Something went wrong. The last message was: \u201cnpm ERR! Something odd happened\u201d. "
                             "The log has the details."));
    EXPECT_EQ(ShellError::failed(1, QStringLiteral("Command failed")).plainDescription(),
              QStringLiteral("Something went wrong. The log has the details."));
    // Failures that are not a command's status keep their own words; so do messages.
    EXPECT_EQ(ShellError::stalled(60).plainDescription(), ShellError::stalled(60).errorDescription());
    EXPECT_EQ(ServiceError::message(QStringLiteral("Plain already.")).plainDescription(),
              QStringLiteral("Plain already."));
}

// npm names the package its registry does not have, and the folder it could not write to.
TEST(Diagnosis, NpmSaysWhatItMissedAndWhereItWasRefused)
{
    const QString head = QStringLiteral("npm ERR! code E404\nnpm ERR! 404 Not Found - GET "
                                        "https://registry.npmjs.org/@google%2fgemini-clii - Not found\n");
    const QString missing = head + QStringLiteral("npm ERR! 404\nnpm ERR! 404  '@google/gemini-clii@*' is not in this "
                                                  "registry.\n");
    for (const QString& output : {missing, head})
        EXPECT_EQ(missingNpmPackage(output), QStringLiteral("@google/gemini-clii")) << output.toStdString();
    EXPECT_EQ(plainFailure(missing), QStringLiteral("@google/gemini-clii was not found on the npm registry. Its maker "
                                                    "may have moved it; the log has the details."));
    // A file that is not a package keeps the general sentence.
    const QString download = QStringLiteral("curl: (22) The requested URL returned error: 404\n");
    EXPECT_EQ(plainFailure(download), failureSentence(FailureCause::notFound));

    EXPECT_EQ(npmErrorPath(QStringLiteral("npm ERR! code EACCES\nnpm ERR! syscall mkdir\nnpm ERR! path "
                                          "/usr/lib/node_modules/@google\nnpm ERR! errno -13\n")),
              QStringLiteral("/usr/lib/node_modules/@google"));
    EXPECT_EQ(npmErrorPath(QStringLiteral("npm ERR! code EACCES\n")), QString());
}

// A cancelled password dialog is the user's answer, not a failure of the command.
TEST(Diagnosis, ACancelledPasswordDialogIsADeclinedRemoval)
{
    const Result<void> cancelled = administratorRemovalResult(ShellError::failed(kAdministratorDeclined, QString()),
                                                              QStringLiteral("Node.js"));
    ASSERT_FALSE(cancelled.ok());
    EXPECT_TRUE(cancelled.error().isDeclined());
    EXPECT_EQ(cancelled.error().shellError(), nullptr);
    EXPECT_EQ(cancelled.error().plainDescription(),
              QStringLiteral("The password dialog was cancelled, so Node.js was not removed."));
    EXPECT_EQ(cancelled.error().errorDescription(), cancelled.error().plainDescription());

    // Every other result stays as it was.
    const ShellError failed = ShellError::failed(1, QStringLiteral("rm: Operation not permitted"));
    const Result<void> other = administratorRemovalResult(failed, QStringLiteral("Node.js"));
    ASSERT_FALSE(other.ok());
    EXPECT_FALSE(other.error().isDeclined());
    EXPECT_EQ(other.error(), ServiceError(failed));
    EXPECT_FALSE(ServiceError(ShellError::timeout(1)).isDeclined());
    EXPECT_TRUE(administratorRemovalResult(Result<void>(), QStringLiteral("Node.js")).ok());
}
