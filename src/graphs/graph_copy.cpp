#include "graphs/graph.h"

namespace tessaplot::graphs {

namespace {

/// Everything of `basics` but the expressions.
void takeBasics(Cls9& graph, const Cls9::Basics& basics) {
    graph.NameS = basics.strName;
    graph.GraphType = basics.gtpGraphType;
    graph.CoordType = basics.dtpCoordType;
    graph.StepU = basics.lngStepU;
    graph.StepV = basics.lngStepV;
    graph.MinU = basics.sngMinU;
    graph.MaxU = basics.sngMaxU;
    graph.MInv = basics.sngMinV;
    graph.MaxV = basics.sngMaxV;
    graph.FillStyle = basics.fstFillStyle;
    graph.FirstColor = basics.lngFirstColor;
    graph.SecondColor = basics.lngSecondColor;
    graph.LineColor = basics.lngLineColor;
    graph.LineWidth = basics.lngLineWidth;
    graph.Material = basics.MatType;
    graph.Show = basics.shwShow;
    graph.Smoothness = basics.smtSmooth;
    graph.ShowContour = basics.bolShowCon;
    graph.ShowVector = basics.bolShowVec;
    graph.ShowColormap = basics.bolShowColormap;
    graph.ContourLevel = basics.lngConLevel;
}

/// Kind, steps, fill and overlays, which both copies take.
void copyCommon(Cls9& to, const Cls9& from) {
    to.NameS = from.NameS;
    to.GraphType = from.GraphType;
    to.CoordType = from.CoordType;
    to.StepU = from.StepU;
    to.StepV = from.StepV;
    to.FillStyle = from.FillStyle;
    to.FirstColor = from.FirstColor;
    to.SecondColor = from.SecondColor;
    to.LineColor = from.LineColor;
    to.LineWidth = from.LineWidth;
    to.Material = from.Material;
    to.Show = from.Show;
    to.Smoothness = from.Smoothness;
    to.ShowContour = from.ShowContour;
    to.ShowVector = from.ShowVector;
    to.ShowColormap = from.ShowColormap;
    to.ContourLevel = from.ContourLevel;
}

void copySurfaceStyle(Cls9& to, const Cls9& from) {
    to.ShowTex = from.ShowTex;
    to.TexName = from.TexName;
    to.TexMode = from.TexMode;
    to.ShowTrans = from.ShowTrans;
    to.TransAlpha = from.TransAlpha;
}

void copyIsoSurface(Cls9& to, const Cls9& from) {
    to.IsoSurColor = from.IsoSurColor;
    to.IsoSurValue = from.IsoSurValue;
}

void copyPlots(Cls9& to, const Cls9& from) {
    to.VertSize = from.VertSize;
    to.VertColor = from.VertColor;
    to.GridColor = from.GridColor;
    to.GridWidth = from.GridWidth;
    to.ContourLevels = from.ContourLevels;
    to.ConFillType = from.ConFillType;
    to.ConColor1 = from.ConColor1;
    to.ConColor2 = from.ConColor2;
    to.ConWidth = from.ConWidth;
    to.Contour3Levels = from.Contour3Levels;
    to.Con3FillType = from.Con3FillType;
    to.Con3Color1 = from.Con3Color1;
    to.Con3Color2 = from.Con3Color2;
    to.Con3Width = from.Con3Width;
    to.ColorMapfilltype = from.ColorMapfilltype;
    to.ColorMapcolor1 = from.ColorMapcolor1;
    to.ColorMapcolor2 = from.ColorMapcolor2;
    to.VectorColor = from.VectorColor;
    to.ShowIrregData = from.ShowIrregData;
    to.Scat4DColor = from.Scat4DColor;
    to.Vect4DColor = from.Vect4DColor;
}

void copyTriangles(Cls9& to, const Cls9& from) {
    to.ShowDS = from.ShowDS;
    to.ShowDG = from.ShowDG;
    to.TriColor = from.TriColor;
    to.TriWidth = from.TriWidth;
}

void copyColorMap(Cls9& to, const Cls9& from) {
    to.ColorName = from.ColorName;
    to.ColorNum = from.ColorNum;
    for (int i = 0; i < from.ColorNum; ++i) {
        to.ColorPos(i) = from.ColorPos(i);
        to.ColorR(i) = from.ColorR(i);
        to.ColorG(i) = from.ColorG(i);
        to.ColorB(i) = from.ColorB(i);
    }
}

void copySliceContents(SliceSet& to, const SliceSet& from) {
    for (int i = 1; i <= from.Num; ++i) {
        const SliceSet::Slice& source = from[i];
        SliceSet::Slice& slice = to[i];
        slice.Position = source.Position;
        slice.ShowColor = source.ShowColor;
        slice.ShowCont = source.ShowCont;
        slice.ShowVect = source.ShowVect;
        slice.ContLevels = source.ContLevels;
        slice.ContColor = source.ContColor;
        slice.VectColor = source.VectColor;
    }
}

void copySliceLimits(SliceSet& to, const SliceSet& from) {
    for (int i = 1; i <= from.Num; ++i) {
        const SliceSet::Slice& source = from[i];
        SliceSet::Slice& slice = to[i];
        slice.FirstBegin = source.FirstBegin;
        slice.FirstEnd = source.FirstEnd;
        slice.SecondBegin = source.SecondBegin;
        slice.SecondEnd = source.SecondEnd;
    }
}

}  // namespace

Cls9 Cls9::init(int lngID, const Basics& basics) {
    Cls9 graph;
    graph.ID = lngID;
    takeBasics(graph, basics);
    return graph;
}

void Cls9::Equal(const Basics& basics) {
    takeBasics(*this, basics);
    ExpX = basics.strExpX;
    ExpY = basics.strExpY;
    ExpZ = basics.strExpZ;
}

void Cls9::EqualTo(const Cls9& other) {
    copyCommon(*this, other);
    MinU = other.MinU;
    MaxU = other.MaxU;
    MInv = other.MInv;
    MaxV = other.MaxV;
    PointX = other.PointX;
    PointY = other.PointY;
    PointZ = other.PointZ;
    PointColor = other.PointColor;
    PointSize = other.PointSize;
    copySurfaceStyle(*this, other);
    copyIsoSurface(*this, other);
}

void Cls9::TabEqualTo(const Cls9& other) {
    // The order shows where a count beyond its table stops the copy part way.
    copyCommon(*this, other);
    copyPlots(*this, other);
    SlicesX.Num = other.SlicesX.Num;
    SlicesY.Num = other.SlicesY.Num;
    SlicesZ.Num = other.SlicesZ.Num;
    copySliceContents(SlicesX, other.SlicesX);
    copySliceContents(SlicesY, other.SlicesY);
    copySliceContents(SlicesZ, other.SlicesZ);
    copySurfaceStyle(*this, other);
    copyTriangles(*this, other);
    copyColorMap(*this, other);
    copySliceLimits(SlicesX, other.SlicesX);
    copySliceLimits(SlicesY, other.SlicesY);
    copySliceLimits(SlicesZ, other.SlicesZ);
    copyIsoSurface(*this, other);
}

}  // namespace tessaplot::graphs
