// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A module of its own, which the program loads when something is to be heard: Qt Multimedia brings
// thirty libraries with it.
#include "soundoutput.h"

#include <QBuffer>

#if __has_include(<QAudioSink>)
#include <QAudioDevice>
#include <QAudioSink>
#include <QMediaDevices>
#else
#include <QAudioOutput>
#endif

namespace Panel
{

namespace
{

#if __has_include(<QAudioSink>)
using Device = QAudioDevice;
using Stream = QAudioSink;

Device defaultDevice()
{
    return QMediaDevices::defaultAudioOutput();
}
#else
using Device = QAudioDeviceInfo;
using Stream = QAudioOutput;

Device defaultDevice()
{
    return QAudioDeviceInfo::defaultOutputDevice();
}
#endif

QAudioFormat makeFormat()
{
    QAudioFormat format;
    format.setSampleRate(SoundOutput::rate);
    format.setChannelCount(2);
#if __has_include(<QAudioSink>)
    format.setSampleFormat(QAudioFormat::Int16);
#else
    format.setSampleSize(16);
    format.setSampleType(QAudioFormat::SignedInt);
    format.setByteOrder(QAudioFormat::Endian(QSysInfo::ByteOrder));
    format.setCodec(QStringLiteral("audio/pcm"));
#endif
    return format;
}

class DeviceOutput : public SoundOutput
{
public:
    explicit DeviceOutput(const Device &device)
        : m_stream(device, makeFormat())
    {
    }
    ~DeviceOutput() override { m_stream.stop(); }

    void play(const QVector<qint16> &samples) override
    {
        stop();
        m_samples.setData(reinterpret_cast<const char *>(samples.constData()),
                          int(samples.size() * qsizetype(sizeof(qint16))));
        m_samples.open(QIODevice::ReadOnly);
        m_stream.start(&m_samples);
    }
    void stop() override
    {
        m_stream.stop();
        m_samples.close();
    }
    bool isPlaying() const override { return m_stream.state() == QAudio::ActiveState; }

private:
    QBuffer m_samples;
    Stream m_stream; ///< goes before what it reads
};

} // namespace

} // namespace Panel

/// The default device's; null where there is none. The caller owns it.
extern "C" Q_DECL_EXPORT Panel::SoundOutput *vnapanelMakeSoundOutput()
{
    const Panel::Device device = Panel::defaultDevice();
    if (device.isNull() || !device.isFormatSupported(Panel::makeFormat()))
        return nullptr;
    return new Panel::DeviceOutput(device);
}
