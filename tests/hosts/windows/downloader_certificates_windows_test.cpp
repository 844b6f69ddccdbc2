// Certificates, and addresses that lead from a safe server to another one.

#include <array>
#include <memory>

#include "hosts/windows/downloader_winhttp.h"
#include "hosts/windows/scratch_directory.h"
#include "hosts/windows/unix_web_server.h"

// It needs windows.h.
#include <wincrypt.h>

namespace kivu::hosts {
namespace {

using platform::Fetched;
constexpr std::int64_t much = 256 << 20;

// While it lives, this Windows takes the certificate for that of an authority. Only for one that
// goes away with the tests: it writes to the machine's store.
class TrustedCertificate {
 public:
    explicit TrustedCertificate(const std::string& pem)
        : store(::CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, CERT_SYSTEM_STORE_LOCAL_MACHINE,
                                L"Root")) {
        std::array<BYTE, 8192> bytes{};
        DWORD size = bytes.size();
        if (store == nullptr || ::CryptStringToBinaryA(pem.c_str(), 0, CRYPT_STRING_BASE64HEADER,
                                                       bytes.data(), &size, nullptr, nullptr) == 0)
            return;
        ::CertAddEncodedCertificateToStore(store, X509_ASN_ENCODING, bytes.data(), size,
                                           CERT_STORE_ADD_ALWAYS, &certificate);
        ::CertControlStore(store, 0, CERT_STORE_CTRL_COMMIT, nullptr);
    }
    ~TrustedCertificate() {
        if (certificate != nullptr) ::CertDeleteCertificateFromStore(certificate);
        if (store != nullptr) ::CertCloseStore(store, 0);
    }
    TrustedCertificate(const TrustedCertificate&) = delete;
    TrustedCertificate& operator=(const TrustedCertificate&) = delete;

 private:
    HCERTSTORE store;
    PCCERT_CONTEXT certificate = nullptr;
};

class DownloaderCertificates : public ::testing::Test {
 protected:
    static void SetUpTestSuite() {
        server = std::make_unique<testing::UnixWebServer>(KIVU_WEB_SERVER);
        stranger = std::make_unique<testing::UnixWebServer>(KIVU_WEB_SERVER);
        // In front of the first look at any certificate: what is trusted by then stays so.
        if (server->IsRunning())
            trusted = std::make_unique<TrustedCertificate>(server->CertificateText());
    }
    static void TearDownTestSuite() {
        trusted.reset();
        stranger.reset();
        server.reset();
    }
    void SetUp() override {
        if (!server->IsRunning() || !stranger->IsRunning())
            GTEST_SKIP() << "servers with certificates come from the system below Wine, by python3 "
                            "and openssl";
    }
    Fetched Get(const std::string& url) { return WinHttpDownloader().Fetch(url, target, much, {}); }
    void ExpectTheOldFile() {
        EXPECT_EQ(directory.Read("target"), "old");
        EXPECT_EQ(directory.Read("target.part"), "<no such file>");
    }

    // One whose certificate is trusted, and one whose is not.
    static std::unique_ptr<testing::UnixWebServer> server, stranger;
    static std::unique_ptr<TrustedCertificate> trusted;
    testing::ScratchDirectory directory;
    const std::string target = directory.Write("target", "old");
};

std::unique_ptr<testing::UnixWebServer> DownloaderCertificates::server;
std::unique_ptr<testing::UnixWebServer> DownloaderCertificates::stranger;
std::unique_ptr<TrustedCertificate> DownloaderCertificates::trusted;

TEST_F(DownloaderCertificates, OneThatNobodyVouchesForIsNoAnswer) {
    EXPECT_EQ(Get(stranger->Http("/file")), Fetched::ok);
    directory.Write("target", "old");
    EXPECT_EQ(Get(stranger->Https("/file")), Fetched::unreachable);
    EXPECT_EQ(Get(stranger->Http("/to/https")), Fetched::unreachable);
    ExpectTheOldFile();
}

TEST_F(DownloaderCertificates, RedirectionsLeadToNothingLessSafe) {
    if (Get(server->Https("/file?with=query")) != Fetched::ok)
        GTEST_SKIP() << "this Windows trusts no certificate that a test brings";
    EXPECT_EQ(directory.Read("target"), "content of /file");
    directory.Write("target", "old");
    EXPECT_EQ(Get(server->Https("/to/http")), Fetched::refused);
    EXPECT_EQ(Get(server->Http("/to/https/and/back")), Fetched::refused);
    EXPECT_EQ(Get(server->Https("/404")), Fetched::refused);
    EXPECT_EQ(Get(server->Https("/short")), Fetched::incomplete);
    ExpectTheOldFile();
    EXPECT_EQ(Get(server->Http("/to/https")), Fetched::ok);
}

TEST_F(DownloaderCertificates, OneOfAnotherServersNameIsNoAnswer) {
    std::string url = server->Https("/file");
    if (Get(url) != Fetched::ok)
        GTEST_SKIP() << "this Windows trusts no certificate that a test brings";
    directory.Write("target", "old");
    url.replace(url.find("localhost"), 9, "127.0.0.1");
    EXPECT_EQ(Get(url), Fetched::unreachable);
    ExpectTheOldFile();
}

}  // namespace
}  // namespace kivu::hosts
