import QtMultimedia
import QtQuick
import Tidewell

/// Plays the film of the first start once, without sound. Loaded by its name alone: where the
/// system has no player, the window comes up without it.
VideoOutput {
    id: root

    required property IntroScreen screen

    fillMode: VideoOutput.PreserveAspectCrop
    Component.onCompleted: player.play()

    MediaPlayer {
        id: player
        source: root.screen.film
        videoOutput: root
        onPositionChanged: at => root.screen.filmIsAt(at, duration)
        onErrorOccurred: root.screen.filmIsMissing()
        onMediaStatusChanged: {
            if (mediaStatus === MediaPlayer.EndOfMedia)
                root.screen.filmHasEnded()
            else if (mediaStatus === MediaPlayer.InvalidMedia)
                root.screen.filmIsMissing()
        }
    }
}
