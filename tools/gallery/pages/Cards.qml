import QtQuick
import Tidewell

Page {
    Grid {
        columns: 3
        columnSpacing: 40
        rowSpacing: 36

        component Card: GlowCard {
            id: card
            property string title
            width: 300
            height: 130
            Row {
                spacing: 16
                IconChip { symbol: "sparkles"; size: 40 }
                Column {
                    spacing: 4
                    Label { text: card.title; size: 15; weight: Font.DemiBold }
                    Label { text: "Junk your Mac\ncan rebuild"; color: Theme.secondary; size: 12.5 }
                    Label { text: "18.4 GB found"; color: card.Ambient.palette.soft; weight: Font.DemiBold; size: 12.5 }
                }
            }
        }

        Card { title: "Standard" }
        Card { title: "Featured"; featured: true }
        Card { title: "Vivid"; vivid: true }
        Card { title: "Hovered"; lift: 1 }
        Card { title: "Violet"; Ambient.palette: Kit.violet; vivid: true }
        Card { title: "Amber, featured, vivid"; Ambient.palette: Kit.amber; featured: true; vivid: true }
        Card { title: "Blue"; Ambient.palette: Kit.blue }
        Card { title: "Red glow"; glow: Theme.destructive; featured: true }
        Card { title: "Cyan, vivid, hovered"; Ambient.palette: Kit.cyan; vivid: true; lift: 1 }
        GlowCard { Label { text: "Sized by its content" } }
        GlowCard { cornerRadius: 8; padding: 10; Label { text: "Small corners" } }
        GlowCard { width: 300; height: 40; cornerRadius: 40; padding: 10; Label { text: "Corners past half the height" } }
    }
}
