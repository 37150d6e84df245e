// SPDX-License-Identifier: MIT
#include "Inspection/Host/ScenarioCommands.h"
#include "Inspection/Host/TCPChannel.h"
#include "Inspection/InspectionLink.h"
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace
{
/** @return what can be read without waiting, up to 1,000,000 bytes */
std::string ReadNow(int iFile)
{
    std::string kBytes(1000000, '~');
    const ssize_t iRead = read(iFile, kBytes.data(), kBytes.size());
    kBytes.resize(iRead > 0 ? static_cast<std::size_t>(iRead) : 0);
    return kBytes;
}

/** A pipe that closes those of its ends that are still open. */
class CPipe
{
public:
    CPipe() { EXPECT_EQ(0, pipe(m_aiEnds)); }
    CPipe(const CPipe&) = delete;
    CPipe& operator=(const CPipe&) = delete;
    ~CPipe()
    {
        CloseReader();
        close(m_aiEnds[1]);
    }

    void CloseReader()
    {
        if (m_aiEnds[0] >= 0)
        {
            close(m_aiEnds[0]);
            m_aiEnds[0] = -1;
        }
    }

    int GetReader() const { return m_aiEnds[0]; }
    int GetWriter() const { return m_aiEnds[1]; }

private:
    int m_aiEnds[2] = {-1, -1};
};
} // namespace

class CHostChannelTest : public CGUITest
{
};

TEST_F(CHostChannelTest, APipe_CarriesLinesInBothDirections)
{
    const CPipe kOut;
    const CPipe kIn;
    CInspectionFileChannel kChannel(kIn.GetReader(), kOut.GetWriter());
    eC_Char acBytes[8];

    EXPECT_EQ(0U, kChannel.Read(acBytes, sizeof(acBytes)));
    EXPECT_EQ(3, write(kIn.GetWriter(), "ab\n", 3));
    EXPECT_EQ(3U, kChannel.Read(acBytes, sizeof(acBytes)));
    EXPECT_TRUE(kChannel.WriteLine("{}\n", 3));
    kChannel.Flush();
    EXPECT_EQ("{}\n", ReadNow(kOut.GetReader()));
}

TEST_F(CHostChannelTest, APipeThatNobodyReads_MakesNobodyWait)
{
    const CPipe kOut;
    CInspectionFileChannel kChannel(-1, kOut.GetWriter());
    const std::string kLine(1000, 'x');
    eC_UInt uiTaken = 0;
    while (kChannel.WriteLine(kLine.data(), 1000))
    {
        kChannel.Flush();
        ++uiTaken;
    }
    EXPECT_LT(CInspectionFileChannel::cuiMostKept / 1000, uiTaken);
    EXPECT_TRUE(kChannel.IsOpen());
    EXPECT_FALSE(ReadNow(kOut.GetReader()).empty());
    kChannel.Flush();
    EXPECT_TRUE(kChannel.WriteLine(kLine.data(), 1000));
}

TEST_F(CHostChannelTest, APipeWithoutReader_EndsNoProgram)
{
    CPipe kOut;
    kOut.CloseReader();
    CInspectionFileChannel kChannel(-1, kOut.GetWriter());
    EXPECT_TRUE(kChannel.WriteLine("{}\n", 3));
    kChannel.Flush();
    EXPECT_FALSE(kChannel.IsOpen());
    EXPECT_FALSE(kChannel.WriteLine("{}\n", 3));
}

TEST_F(CHostChannelTest, Destruction_LetsTheFileWaitAgain)
{
    const CPipe kOut;
    {
        const CInspectionFileChannel kChannel(-1, kOut.GetWriter());
        EXPECT_NE(0, fcntl(kOut.GetWriter(), F_GETFL) & O_NONBLOCK);
    }
    EXPECT_EQ(0, fcntl(kOut.GetWriter(), F_GETFL) & O_NONBLOCK);
}

TEST_F(CHostChannelTest, AReaderThatConnects_IsToldEverythingAndSendsCommands)
{
    std::string kError;
    CInspectionTCPChannel kChannel;
    ASSERT_TRUE(kChannel.Listen(0, kError)) << kError;
    eC_Char acLine[256];
    eC_Char acInput[64];
    CInspectionLink kLink(Manager(), kChannel, acLine, sizeof(acLine));
    CInspectionCommands kCommands(Manager());
    kLink.AllowInput(kCommands, acInput, sizeof(acInput));
    kLink.Run();

    const int iSocket = ConnectToInspection("127.0.0.1", kChannel.GetPort(), kError);
    ASSERT_LE(0, iSocket) << kError;
    kLink.Run();
    kLink.Run();
    EXPECT_NE(std::string::npos, ReadNow(iSocket).find("\"part\":\"heap\""));
    EXPECT_EQ(20, write(iSocket, "GetHistoryStackSize\n", 20));
    kLink.Run();
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":1,\"result\":\"0\"}\n", ReadNow(iSocket));

    const int iSecond = ConnectToInspection("127.0.0.1", kChannel.GetPort(), kError);
    kLink.Run();
    kLink.Run();
    EXPECT_NE(std::string::npos, ReadNow(iSecond).find("\"part\":\"heap\""));
    EXPECT_EQ("", ReadNow(iSocket));
    EXPECT_EQ(2U, kChannel.GetReaders());
    close(iSocket);
    close(iSecond);
}

TEST_F(CHostChannelTest, WhatCannotBeListenedAt_IsTold)
{
    std::string kError;
    CInspectionTCPChannel kFirst;
    ASSERT_TRUE(kFirst.Listen(0, kError));
    CInspectionTCPChannel kSecond;
    EXPECT_FALSE(kSecond.Listen(kFirst.GetPort(), kError));
    EXPECT_EQ("127.0.0.1:" + std::to_string(kFirst.GetPort()) + ": cannot listen (Address already in use)",
              kError);
    EXPECT_FALSE(kSecond.Listen(65536, kError));
    EXPECT_EQ("127.0.0.1:65536: expected a port from 0 to 65535", kError);
    EXPECT_FALSE(kSecond.Listen(0, kError, "localhost"));
    EXPECT_EQ("localhost:0: expected an IPv4 address, for example 127.0.0.1", kError);
    EXPECT_FALSE(kFirst.Listen(0, kError));
    EXPECT_EQ("127.0.0.1:0: this channel listens already", kError);
    EXPECT_EQ(-1, ConnectToInspection("nowhere", 1, kError));
    EXPECT_EQ("nowhere:1: expected an IPv4 address, for example 127.0.0.1", kError);
    EXPECT_EQ(0U, kSecond.GetPort());
}

TEST_F(CHostChannelTest, ASerialDevice_IsOpenedRaw)
{
    const int iMaster = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_LE(0, iMaster);
    ASSERT_EQ(0, grantpt(iMaster));
    ASSERT_EQ(0, unlockpt(iMaster));
    std::string kError;
    const int iDevice = OpenSerialDevice(ptsname(iMaster), 115200, kError);
    ASSERT_LE(0, iDevice) << kError;
    {
        CInspectionFileChannel kChannel(iDevice, iDevice);
        kChannel.WriteLine("{}\n", 3);
        kChannel.Flush();
        EXPECT_EQ("{}\n", ReadNow(iMaster));
    }
    close(iDevice);
    close(iMaster);
}

TEST_F(CHostChannelTest, WhatIsNoSerialDevice_IsTold)
{
    std::string kError;
    EXPECT_EQ(-1, OpenSerialDevice("/none", 115200, kError));
    EXPECT_EQ("/none: cannot open (No such file or directory)", kError);
    EXPECT_EQ(-1, OpenSerialDevice("/dev/null", 115200, kError));
    EXPECT_EQ("/dev/null: expected a serial device (Inappropriate ioctl for device)", kError);
    EXPECT_EQ(-1, OpenSerialDevice("/dev/null", 7, kError));
    EXPECT_EQ("/dev/null: expected 9600 to 921600 baud, found 7", kError);
}

TEST_F(CHostChannelTest, LinesForAPlayer_AreThoseOfScenarios)
{
    CScenarioPlayer kPlayer(Manager(), Clock(), Events());
    CScenarioCommands kCommands(kPlayer);
    eC_Char acAdvance[] = "advance 500";
    CInspectionReply kAdvanced;
    kCommands.Execute(acAdvance, kAdvanced);
    EXPECT_STREQ("", kAdvanced.GetText());
    EXPECT_FALSE(kAdvanced.IsRefusal());
    EXPECT_EQ(500U, Clock().GetTime());

    eC_Char acWrong[] = "advance soon";
    CInspectionReply kRefused;
    kCommands.Execute(acWrong, kRefused);
    EXPECT_STREQ("advance: expected a number from 0 to 4294967295, found 'soon'", kRefused.GetText());
    EXPECT_TRUE(kRefused.IsRefusal());
}
