#ifndef DEVICE_EMBEDDEDTEXTS_H
#define DEVICE_EMBEDDEDTEXTS_H

/** @file
 *  Text files that are a part of the program, for want of a file system.
 */

struct EmbeddedText_t
{
    const char* m_pcName; ///< the file's name without directories, null behind the last one
    const char* m_pcText;
};

/** Those that device_embed_texts adds to the program. */
extern const EmbeddedText_t g_akEmbeddedTexts[];

#endif
